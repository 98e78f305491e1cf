#!/bin/sh
# A build by another compiler keeps every promise: the bits, and what its callers expect.
# Usage: other_compiler.sh BUILD_DIR SOURCE_DIR C_COMPILER CXX_COMPILER TARGET [CMAKE_OPTION...]
set -eu
build=$1 source=$2 cc=$3 cxx=$4 target=$5
shift 5
other=${OTHER:-$build/other_compiler}
mkdir -p "$other"

# It stays in the build folder, so that only what changes is compiled again.
cmake -S "$source" -B "$other" -G Ninja -DCMAKE_BUILD_TYPE=Release -DZULGEN_TESTS=OFF \
  -DZULGEN_BENCH=OFF -DZULGEN_EXAMPLES=OFF -DZULGEN_DOCS=OFF -DZULGEN_TARGETS="$target" -DZULGEN_LEVELS= \
  -DCMAKE_C_COMPILER="$cc" -DCMAKE_CXX_COMPILER="$cxx" "$@" >"$other/log"
cmake --build "$other" >"$other/log" 2>&1 || { tail -30 "$other/log"; exit 1; }
theirs=$(find "$other/lib" -name libzulgens8.so.6.1 -not -path '*hwcaps*')
ours=$build/lib/$(basename "$(dirname "$theirs")")/libzulgens8.so.6.1
! cmp -s "$ours" "$theirs" || { echo "both libraries are the same file"; exit 1; }
list=$build/generated/$target/library.txt
"$build/bin/kernel_checks_$target" "$theirs" "$list" "$source/tests/digests.txt"
"$build/bin/kernel_digests_$target" "$ours" "$list" >"$other/ours"
"$build/bin/kernel_digests_$target" "$theirs" "$list" >"$other/theirs"
diff "$other/ours" "$other/theirs"
