#!/bin/sh
# The library of a target by every C++ compiler here and by every linker that goes with it, with -flto
# and without: each has the bits and the calling convention of the build's own. That takes half an hour
# of processor time and more, so it isn't one of the tests.
# Usage: toolchains.sh BUILD_DIR TARGET
set -eu
build=$(realpath "$1") target=$2
tests=$(dirname "$(realpath "$0")")
failed=0
for cxx in g++ $(cd /usr/bin && ls -d clang++-[0-9]* 2>/dev/null); do
  version=${cxx#clang++}
  # A linker, and what makes archives, have to know the compiler's intermediate code.
  archiver=
  case $cxx in
    g++) cc=gcc linkers="gold lld" lto_linkers="bfd gold" ;;  # the build itself is by bfd
    *) cc=clang$version linkers="bfd gold lld$version" lto_linkers="lld$version"
      archiver="-DCMAKE_AR=/usr/bin/llvm-ar$version -DCMAKE_RANLIB=/usr/bin/llvm-ranlib$version" ;;
  esac
  for lto in "" -flto; do
    [ -z "$lto" ] || linkers=$lto_linkers
    for linker in $linkers; do
      command -v "ld.$linker" >/dev/null || continue
      printf '%s %s, ld.%s: ' "$cxx" "$lto" "$linker"
      OTHER=$build/toolchains/$target/$cxx$lto "$tests/other_compiler.sh" "$build" "$tests/.." "$cc" "$cxx" \
        "$target" $archiver -DCMAKE_CXX_FLAGS="$lto" -DCMAKE_SHARED_LINKER_FLAGS="-fuse-ld=$linker $lto" || failed=1
    done
  done
done
exit $failed
