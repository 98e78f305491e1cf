#!/bin/sh
# The README's way from the built library to a program against an installed tree.
# Usage: readme_install.sh SOURCE_DIR BUILD_DIR
set -eu
source=$1 build=$2
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
# The build stands already.
blocks sh 'Install and link' | grep -v '^cmake --preset' | sed "s,build/library,$build," >"$work/install"
[ "$(grep -c '^gcc' "$work/install")" -eq 2 ]
(cd "$work" && HOME=$work sh -eu install) | grep -v -e '^-- ' | diff "$work/wanted" -
[ -z "$(find "$work/zulgen" ! -type d)" ] || { echo "something stays behind" >&2; exit 1; }
