#!/bin/sh
# Installs, moves the tree, and builds and runs other people's programs against it: by CMake, by
# pkg-config and by hand, for every architecture.
# Usage: install.sh BUILD_DIR SOURCE_DIR C_COMPILER CXX_COMPILER ARCHITECTURE:TRIPLET:OPTIONS...
set -eu
build=$1 programs=$2/tests/install cc=$3 cxx=$4 sources=$2
shift 4
work=$(mktemp -d)
trap 'rm -r "$work"' EXIT
unset LD_LIBRARY_PATH PKG_CONFIG_PATH CMAKE_PREFIX_PATH

fail() { echo "$1" >&2; exit 1; }
run() { [ "$("$@")" = right ] || fail "wrong result: $*"; }

cmake --install "$build" --prefix "$work/first" >/dev/null
mv "$work/first" "$work/a place"
prefix="$work/a place"
! grep -rlI -e "$work/first" -e "$build" -e "$sources" "$prefix" || fail "files that know a place"

libdir_of() {  # libdir_of TRIPLET: where its libraries are below the prefix
  [ -d "$prefix/lib/$1" ] && echo "lib/$1" || echo lib
}

for architecture in "$@"; do
  name=${architecture%%:*} rest=${architecture#*:}
  libdir=$(libdir_of "${rest%%:*}") options=${rest#*:}
  for library in zulgens8 zulcore; do
    [ "$(readlink "$prefix/$libdir/lib$library.so")" = lib$library.so.6.1 ] ||
      fail "link of lib$library.so"
  done
  # The package fits the size of the program's pointers.
  cmake -S "$programs" -B "$work/cmake_$name" -G Ninja -DCMAKE_BUILD_TYPE=Debug \
    -DCMAKE_C_COMPILER="$cc" -DCMAKE_CXX_COMPILER="$cxx" -DCMAKE_C_FLAGS="$options" \
    -DCMAKE_CXX_FLAGS="$options" -DCMAKE_PREFIX_PATH="$prefix" >"$work/log" 2>&1 ||
    fail "$(cat "$work/log")"
  cmake --build "$work/cmake_$name" >"$work/log" 2>&1 || fail "$(cat "$work/log")"
  for program in c cpp c_static cpp_static; do run "$work/cmake_$name/$program"; done
  readelf -d "$work/cmake_$name/c" | grep -q 'NEEDED.*libzulgens8.so.6.1' ||
    fail "the shared one isn't used"
  ! readelf -d "$work/cmake_$name/c_static" | grep -q 'NEEDED.*zul' ||
    fail "the archive isn't used"
done

# Paths with blanks are beyond pkg-config's output as the shell splits it.
mv "$prefix" "$work/place"
prefix=$work/place
for architecture in "$@"; do
  rest=${architecture#*:}
  libdir=$prefix/$(libdir_of "${rest%%:*}") options=${rest#*:}
  export PKG_CONFIG_PATH="$libdir/pkgconfig"
  [ "$(pkg-config --modversion zulgens8)" = 6.1 ] || fail "pkg-config's version"
  flags=$(pkg-config --cflags --libs zulgens8 zulcore)
  static_flags=$(pkg-config --static --cflags --libs zulgens8 zulcore)
  # shellcheck disable=SC2086
  for language in c cpp; do
    case $language in
      c) compile="$cc -std=c89 -pedantic-errors" ;;
      cpp) compile="$cxx -std=c++20" ;;
    esac
    $compile "$programs/main.$language" $flags -Wl,-rpath,"$libdir" -o "$work/by_pkg_config"
    run "$work/by_pkg_config"
    $compile "$programs/main.$language" -static $static_flags -o "$work/static"
    run "$work/static"
    $compile $options -I"$prefix/include" "$programs/main.$language" -L"$libdir" -lzulgens8 \
      -lzulcore -Wl,-rpath,"$libdir" -o "$work/by_hand"
    run "$work/by_hand"
    $compile $options -I"$prefix/include" "$programs/main.$language" "$libdir/libzulgens8.a" \
      "$libdir/libzulcore.a" -Wl,--gc-sections -o "$work/archives"
    run "$work/archives"
  done
  # A program that names its kernel takes that one along; the archives also make a library.
  [ "$(nm "$work/archives" | grep -c ' T zulgDFT')" -eq 1 ] || fail "kernels that nobody calls"
  # shellcheck disable=SC2086
  for linker in bfd gold lld; do
    command -v ld.$linker >/dev/null || { echo "no ld.$linker here: skipped"; continue; }
    "$cc" $options -fuse-ld=$linker -shared -Wl,-z,text,-z,defs,--whole-archive \
      "$libdir/libzulgens8.a" -Wl,--no-whole-archive "$libdir/libzulcore.a" -lm \
      -o "$work/library.so" || fail "$linker makes no library of the archives"
    "$cc" $options "$programs/main.c" -I"$prefix/include" "$work/library.so" -o "$work/of_library"
    run "$work/of_library"
  done

  # The dynamic loader takes the level that the processor is up to, and the plain library if told to.
  if [ -d "$libdir/glibc-hwcaps" ]; then
    used() { LD_DEBUG=libs "$work/by_hand" 2>&1 | sed -n 's/.*calling init: .*lib\/\(.*libzulgens8.*\)/\1/p'; }
    if grep -q ' avx2 .* bmi2 ' /proc/cpuinfo; then
      used | grep -q glibc-hwcaps/x86-64-v3 || fail "the level isn't used: $(used)"
    else
      echo "no processor for x86-64-v3: skipped"
    fi
    export GLIBC_TUNABLES=glibc.cpu.hwcaps=-AVX2
    ! used | grep -q glibc-hwcaps || fail "the level can't be turned off: $(used)"
    run "$work/by_hand"
    unset GLIBC_TUNABLES
  fi
done
