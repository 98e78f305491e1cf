#!/bin/sh
# The same sources in another place, compiled by another compiler: the generator writes the same
# files, byte for byte, and the build's own compiler makes the same objects of them there.
# Usage: same_bytes.sh BUILD_DIR SOURCE_DIR C_COMPILER CXX_COMPILER TARGET...
set -eu
build=$1 source=$2 cc=$3 cxx=$4
shift 4
work=$(mktemp -d)
trap 'rm -r "$work"' EXIT

mkdir "$work/sources"
tar -C "$source" --exclude=./build --exclude=./.git -cf - . | tar -C "$work/sources" -xf -
cmake -S "$work/sources" -B "$work/built" -G Ninja -DCMAKE_BUILD_TYPE=Release -DZULGEN_TESTS=OFF \
  -DZULGEN_BENCH=OFF -DZULGEN_EXAMPLES=OFF -DZULGEN_DOCS=OFF -DCMAKE_C_COMPILER="$cc" \
  -DCMAKE_CXX_COMPILER="$cxx" -DZULGEN_TARGETS="$(IFS=';' && echo "$*")" >"$work/log"
generated=
for target in $(ls "$build/generated"); do generated="$generated generated/$target/zulgens8.map"; done
# shellcheck disable=SC2086
ninja -C "$work/built" $generated >"$work/log" 2>&1 || { tail -30 "$work/log"; exit 1; }
diff -r "$build/generated" "$work/built/generated"

# One file of each family. Its compiler's command, but for the headers that were compiled before.
for target in $(ls "$build/generated"); do
  for file in "$build/generated/$target"/*.0.cpp; do
    object=$(basename "$file").o
    command=$(sed -n "s|^  \"command\": \"\(.* -o [^ ]*zulgen_kernels_$target.dir/[^ ]*/$object\) .*|\1|p" \
      "$build/compile_commands.json")
    original=$build/${command##* -o }
    command=$(echo "${command% -o *}" | sed "s| -Winvalid-pch -include [^ ]*||; s|$build|$work/built|g; s|$source|$work/sources|g")
    (cd "$work/built" && $command -o "$work/$object" -c "generated/$target/$(basename "$file")")
    cmp "$original" "$work/$object"
  done
done
