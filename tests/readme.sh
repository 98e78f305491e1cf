#!/bin/sh
# The README's example prints what the README says, compiled in the ways that the README says.
# Usage: readme.sh SOURCE_DIR BUILD_DIR C_COMPILER
set -eu
source=$1 build=$2 compiler=$3
work=$(mktemp -d)
trap 'rm -r "$work"' EXIT

# blocks LANGUAGE SECTION: what the section's blocks in that language hold.
blocks() {
  awk -v language="$1" -v section="$2" '
    /^#+ / && !inside {in_section = $0 ~ section "$"}
    /^```/ {inside = !inside; wanted = inside && in_section && $0 == "```" language; next}
    wanted' "$source/README.md"
}

blocks c '# zulgen' >"$work/example.c"
blocks text '# zulgen' >"$work/wanted"
[ -s "$work/example.c" ] && [ -s "$work/wanted" ]
"$compiler" -m32 -std=c89 -pedantic-errors -Wall -Werror -I"$source/include" "$work/example.c" \
  -L"$build/lib" -lzulgens8 -Wl,-rpath,"$build/lib" -o "$work/example"
"$work/example" | diff "$work/wanted" -

# From an installed tree; the build stands already.
blocks sh 'Install and link' | grep -v '^cmake --preset' | sed "s,build/library,$build," >"$work/install"
[ "$(grep -c '^gcc' "$work/install")" -eq 2 ]
(cd "$work" && HOME=$work sh -eu install) | grep -v -e '^-- ' | diff "$work/wanted" -
