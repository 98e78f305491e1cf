#!/bin/sh
# A build by another compiler, which compiles the generator as well, computes the same bits.
# Usage: other_compiler.sh BUILD_DIR SOURCE_DIR C_COMPILER CXX_COMPILER
set -eu
build=$1 source=$2 cc=$3 cxx=$4
other=$build/other_compiler
mkdir -p "$other"

# It stays in the build folder, so that only what changes is compiled again.
cmake -S "$source" -B "$other" -G Ninja -DCMAKE_BUILD_TYPE=Release -DZULGEN_TESTS=OFF \
  -DZULGEN_BENCH=OFF -DZULGEN_EXAMPLES=OFF -DZULGEN_DOCS=OFF \
  -DCMAKE_C_COMPILER="$cc" -DCMAKE_CXX_COMPILER="$cxx" >"$other/log"
cmake --build "$other" >"$other/log" 2>&1 || { tail -30 "$other/log"; exit 1; }
! cmp -s "$build/lib/libzulgens8.so.6.1" "$other/lib/libzulgens8.so.6.1" || {
  echo "both libraries are the same file"
  exit 1
}
"$build/bin/kernel_digests" "$build/lib/libzulgens8.so.6.1" >"$other/ours"
"$build/bin/kernel_digests" "$other/lib/libzulgens8.so.6.1" >"$other/theirs"
diff "$other/ours" "$other/theirs" >"$other/difference" || head -20 "$other/difference"
echo "$(wc -l <"$other/ours") digests"
[ -s "$other/ours" ] && [ ! -s "$other/difference" ]
