#!/bin/sh
# What a shared library is as a file.
# Usage: library_file.sh LIBRARY ELF_CLASS "NEEDED LIBRARY..." [NAME...]
# with patterns of the exported functions that have a second body.
set -eu
library=$1 class=$2 needed=$3
shift 3
work=$(mktemp -d)
trap 'rm -r "$work"' EXIT
failed=0

expect() {  # expect WHAT ACTUAL WANTED
  if [ "$2" != "$3" ]; then
    echo "$1: \"$2\" instead of \"$3\"" >&2
    failed=1
  fi
}

readelf -dW "$library" >"$work/dynamic"
expect soname "$(sed -n 's/.*(SONAME).*\[\(.*\)\]/\1/p' "$work/dynamic")" "${library##*/}"
expect needs "$(sed -n 's/.*(NEEDED).*\[\(.*\)\]/\1/p' "$work/dynamic" | xargs)" "$needed"
expect "text relocations" "$(grep -c TEXTREL "$work/dynamic" || true)" 0
# Any C library of this century serves.
newest=$( (echo GLIBC_2.2.5; readelf -VW "$library" | grep -o 'GLIBC_[0-9.]*') | sort -V | tail -1)
expect "needs of libc" "$newest" GLIBC_2.2.5
readelf -lW "$library" >"$work/segments"
expect stack "$(awk '$1 == "GNU_STACK" {print $7}' "$work/segments")" RW
expect "writable code" "$(grep -c ' RWE ' "$work/segments" || true)" 0
# All that is writable while the loader works is read-only afterwards.
readelf -SW "$library" | sed -n 's/^ *\[ *[0-9]*\] //p' | awk '$7 ~ /W/ {print $1}' |
  sort >"$work/writable"
awk '$1 ~ /^[0-9]+$/ && $0 !~ /NULL/ {n = $1 + 0; $1 = ""; s[n] = $0} /GNU_RELRO/ {r = k} \
  {if ($1 ~ /^(LOAD|DYNAMIC|NOTE|GNU_|PHDR|TLS)/) k++}
  END {print s[r]}' "$work/segments" | xargs -n1 2>/dev/null | sort >"$work/relro"
expect "data left writable" "$(comm -23 "$work/writable" "$work/relro" | xargs)" ""
expect class "$(readelf -h "$library" | awk '/Class:/ {print $2}')" "$class"

# Second bodies are functions of their own that aren't exported.
nm -D --defined-only "$library" | awk '{print $3}' | sort >"$work/exports"
for pattern in "$@"; do grep -E -e "$pattern" "$work/exports" || true; done |
  sed 's/^zulg/owng/; s/$/_unaligned/' | sort >"$work/wanted_twins"
nm "$library" | awk '$2 == "t" && /_unaligned$/ {print $3}' | sort >"$work/twins"
expect "unaligned bodies" "$(comm -3 "$work/twins" "$work/wanted_twins" | xargs)" ""
exit $failed
