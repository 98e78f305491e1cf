#!/bin/sh
# The README's example prints what the README says.
# Usage: readme.sh SOURCE_DIR BUILD_DIR C_COMPILER
set -eu
source=$1 build=$2 compiler=$3
work=$(mktemp -d)
trap 'rm -r "$work"' EXIT
block() { sed -n "/^\`\`\`$1\$/,/^\`\`\`\$/p" "$source/README.md" | sed '1d;$d'; }
block c >"$work/example.c"
block text >"$work/wanted"
[ -s "$work/example.c" ] && [ -s "$work/wanted" ]
"$compiler" -m32 -std=c89 -pedantic-errors -Wall -Werror -I"$source/include" "$work/example.c" \
  -L"$build/lib" -lzulgens8 -Wl,-rpath,"$build/lib" -o "$work/example"
"$work/example" | diff "$work/wanted" -
