#!/bin/sh
# What the shared libraries are as files.
# Usage: library_file.sh BUILD_DIR
set -eu
build=$1
work=$(mktemp -d)
trap 'rm -r "$work"' EXIT
failed=0

expect() {  # expect WHAT ACTUAL WANTED
  if [ "$2" != "$3" ]; then
    echo "$1: \"$2\" instead of \"$3\"" >&2
    failed=1
  fi
}

check_library() {  # check_library FILE NEEDED
  library=$build/lib/$1
  readelf -dW "$library" >"$work/dynamic"
  expect "$1 soname" "$(sed -n 's/.*(SONAME).*\[\(.*\)\]/\1/p' "$work/dynamic")" "$1"
  expect "$1 needs" "$(sed -n 's/.*(NEEDED).*\[\(.*\)\]/\1/p' "$work/dynamic" | xargs)" "$2"
  expect "$1 text relocations" "$(grep -c TEXTREL "$work/dynamic" || true)" 0
  readelf -lW "$library" >"$work/segments"
  expect "$1 stack" "$(awk '$1 == "GNU_STACK" {print $7}' "$work/segments")" RW
  expect "$1 writable code" "$(grep -c ' RWE ' "$work/segments" || true)" 0
  # All that is writable while the loader works is read-only afterwards.
  readelf -SW "$library" | sed -n 's/^ *\[ *[0-9]*\] //p' | awk '$7 ~ /W/ {print $1}' |
    sort >"$work/writable"
  awk '$1 ~ /^[0-9]+$/ && $0 !~ /NULL/ {n = $1 + 0; $1 = ""; s[n] = $0} /GNU_RELRO/ {r = k} \
    {if ($1 ~ /^(LOAD|DYNAMIC|NOTE|GNU_|PHDR|TLS)/) k++}
    END {print s[r]}' "$work/segments" | xargs -n1 2>/dev/null | sort >"$work/relro"
  expect "$1 data left writable" "$(comm -23 "$work/writable" "$work/relro" | xargs)" ""
  expect "$1 is 32-bit" "$(readelf -h "$library" | awk '/Class:/ {print $2}')" ELF32
  nm -D --defined-only "$library" | awk '{print $3}' | sort >"$work/exports"
}

check_library libzulcore.so.6.1 libc.so.6
expect "libzulcore's exports" "$(xargs <"$work/exports")" "zulFree zulMalloc"

check_library libzulgens8.so.6.1 "libzulcore.so.6.1 libm.so.6"
"$build/bin/zulgen-generate" --list | sort >"$work/manifest"
expect "exports that aren't in the manifest, or the reverse" \
  "$(comm -3 "$work/exports" "$work/manifest" | xargs)" ""
# Kernels that have two bodies have the second as a function that isn't exported.
nm "$build/lib/libzulgens8.so.6.1" | awk '$2 == "t" {print $3}' | grep '^owng' | sort >"$work/twins"
grep -E -e '_CToC_(([6-9]|[1-6][0-9])_32fc|([5-9]|[1-6][0-9])_64fc)' -e 'WHT_([4-9]|1[0-3])_' \
  "$work/manifest" | sed 's/^zulg/owng/; s/$/_unaligned/' | sort >"$work/wanted_twins"
expect "unaligned bodies" "$(comm -3 "$work/twins" "$work/wanted_twins" | xargs)" ""
exit $failed
