#!/bin/sh
# A build from a copy of the sources in another place gives the same files, byte for byte.
# Usage: same_bytes.sh BUILD_DIR SOURCE_DIR C_COMPILER CXX_COMPILER
set -eu
build=$1 source=$2 cc=$3 cxx=$4
work=$(mktemp -d)
trap 'rm -r "$work"' EXIT

mkdir "$work/sources"
tar -C "$source" --exclude=./build --exclude=./.git -cf - . | tar -C "$work/sources" -xf -
cmake -S "$work/sources" -B "$work/built" -G Ninja -DCMAKE_BUILD_TYPE=Release -DZULGEN_TESTS=OFF \
  -DZULGEN_BENCH=OFF -DZULGEN_EXAMPLES=OFF -DZULGEN_DOCS=OFF -DCMAKE_C_COMPILER="$cc" -DCMAKE_CXX_COMPILER="$cxx" \
  >"$work/log"
cmake --build "$work/built" >"$work/log" 2>&1 || { tail -30 "$work/log"; exit 1; }
diff -r "$build/generated" "$work/built/generated"
for file in libzulgens8.so.6.1 libzulgens8.a libzulcore.so.6.1 libzulcore.a; do
  cmp "$build/lib/$file" "$work/built/lib/$file"
done
