#!/bin/sh
# Installs, moves the tree, and builds and runs other people's programs against it: by CMake, by
# pkg-config and by hand.
# Usage: install.sh BUILD_DIR SOURCE_DIR C_COMPILER CXX_COMPILER
set -eu
build=$1 programs=$2/tests/install cc=$3 cxx=$4
work=$(mktemp -d)
trap 'rm -r "$work"' EXIT
unset LD_LIBRARY_PATH PKG_CONFIG_PATH CMAKE_PREFIX_PATH

fail() { echo "$1" >&2; exit 1; }
run() { [ "$("$@")" = right ] || fail "wrong result: $*"; }

cmake --install "$build" --prefix "$work/first" >/dev/null
mv "$work/first" "$work/a place"
prefix="$work/a place"
for library in zulgens8 zulcore; do
  [ "$(readlink "$prefix/lib/lib$library.so")" = lib$library.so.6.1 ] || fail "link of lib$library.so"
done
! grep -rlI -e "$work/first" -e "$build" -e "$2" "$prefix" || fail "files that know a place"

# The compilers of this machine may make 64-bit code by default: the package sees to it.
cmake -S "$programs" -B "$work/cmake" -DCMAKE_BUILD_TYPE=Debug -DCMAKE_C_COMPILER="$cc" \
  -DCMAKE_CXX_COMPILER="$cxx" -DCMAKE_PREFIX_PATH="$prefix" >"$work/log" 2>&1 || fail "$(cat "$work/log")"
cmake --build "$work/cmake" >"$work/log" 2>&1 || fail "$(cat "$work/log")"
for program in c cpp c_static cpp_static; do run "$work/cmake/$program"; done
readelf -d "$work/cmake/c" | grep -q 'NEEDED.*libzulgens8.so.6.1' || fail "the shared one isn't used"
! readelf -d "$work/cmake/c_static" | grep -q 'NEEDED.*zul' || fail "the archive isn't used"

# Paths with blanks are beyond pkg-config's output as the shell splits it.
mv "$prefix" "$work/place"
prefix=$work/place
export PKG_CONFIG_PATH="$prefix/lib/pkgconfig"
[ "$(pkg-config --modversion zulgens8)" = 6.1 ] || fail "pkg-config's version"
flags=$(pkg-config --cflags --libs zulgens8 zulcore)
static_flags=$(pkg-config --static --cflags --libs zulgens8 zulcore)
# shellcheck disable=SC2086
for language in c cpp; do
  case $language in c) compile="$cc -std=c89 -pedantic-errors" ;; cpp) compile="$cxx -std=c++20" ;; esac
  $compile "$programs/main.$language" $flags -Wl,-rpath,"$prefix/lib" -o "$work/by_pkg_config"
  run "$work/by_pkg_config"
  $compile "$programs/main.$language" -static $static_flags -o "$work/static"
  run "$work/static"
  $compile -m32 -I"$prefix/include" "$programs/main.$language" -L"$prefix/lib" -lzulgens8 -lzulcore \
    -Wl,-rpath,"$prefix/lib" -o "$work/by_hand"
  run "$work/by_hand"
  $compile -m32 -I"$prefix/include" "$programs/main.$language" "$prefix/lib/libzulgens8.a" \
    "$prefix/lib/libzulcore.a" -Wl,--gc-sections -o "$work/archives"
  run "$work/archives"
done
# A program that names its kernel takes that one along; the archives also make a library.
[ "$(nm "$work/archives" | grep -c ' T zulgDFT')" -eq 1 ] || fail "kernels that nobody calls"
"$cc" -m32 -shared -Wl,-z,text,-z,defs,--whole-archive "$prefix/lib/libzulgens8.a" \
  -Wl,--no-whole-archive "$prefix/lib/libzulcore.a" -lm -o "$work/library.so"
