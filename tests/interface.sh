#!/bin/sh
# The headers declare what interface.txt says, and the libraries export it.
# Usage: interface.sh SOURCE_DIR C_COMPILER GENERATOR LIBRARY...
# with every libzulgens8 there is, and one libzulcore.
set -eu
source=$1 compiler=$2 generator=$3
shift 3
work=$(mktemp -d)
trap 'rm -r "$work"' EXIT

awk '/^#/ || !NF {next}
  match($0, / [0-9]+\.\.[0-9]+$/) {
    split(substr($0, RSTART + 1), range, /\.\./)
    for (n = range[1]; n <= range[2]; ++n) {
      line = substr($0, 1, RSTART - 1); sub(/_N_/, "_" n "_", line); print line
    }
    next
  }
  {print}' "$source/tests/interface.txt" | sort >"$work/wanted"

# Statements of the preprocessed headers, one a line, without the names of parameters.
printf '#include "zulgen.h"\n#include "zulcore.h"\n' >"$work/all.h"
{
  "$compiler" -E -dM -I"$source/include" "$work/all.h" |
    sed -n 's/^#define \(ZULG_[A-Z_]* .*\)/\1/p'
  "$compiler" -E -P -I"$source/include" "$work/all.h" | tr '\n' ' ' |
    awk 'BEGIN {RS = ";"}
      {
        statement = statement (statement == "" ? "" : ";") $0
        if (gsub(/{/, "{", statement) != gsub(/}/, "}", statement)) next
        gsub(/ +/, " ", statement); gsub(/^ | $/, "", statement)
        if (statement ~ /zul/) print statement
        statement = ""
      }' | sed -E 's/([ *])[a-z]+([,)])/\1\2/g; s/ ([,)])/\1/g'
} | sort >"$work/declared"
compare() {  # compare FILE OTHER WHAT
  diff "$1" "$2" >"$work/difference" && return
  echo "< interface.txt, > $3"
  head -20 "$work/difference"
  exit 1
}
compare "$work/wanted" "$work/declared" headers

sed -n 's/^.*[ *]\(zul[a-zA-Z0-9_]*\)(.*/\1/p' "$work/wanted" | sort >"$work/functions"
for library in "$@"; do
  case $library in
    *zulcore*) wanted=$work/core && grep '^zul[A-Z]' "$work/functions" >"$wanted" ;;
    *) wanted=$work/transforms && grep -v '^zul[A-Z]' "$work/functions" >"$wanted" ;;
  esac
  nm -D --defined-only "$library" | awk '{print $3}' | sort >"$work/exported"
  compare "$wanted" "$work/exported" "$library"
done
"$generator" --list | sort >"$work/manifest"
compare "$work/transforms" "$work/manifest" manifest
echo "$(wc -l <"$work/functions") functions"
