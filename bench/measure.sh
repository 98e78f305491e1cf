#!/bin/sh
# Measures the figures that the reference pages show, and writes them anew to docs/measured/:
#
#   error.csv    the relative L2 error of every kernel, as kernels_test finds it
#   speed.csv    core cycles a call, and FFTW's: takes some minutes
#   dct4.csv     the same of the DCT-IV
#   machine.txt  what they were measured on
#
# Usage: bench/measure.sh BUILD_DIR [COMMAND...]
#
# It measures in pieces of a minute or two. On a machine that is shared, COMMAND is what to run each
# of them under, such as "flock FILE".
set -eu
build=$1
shift
measured=$(dirname "$(realpath "$0")")/../docs/measured
work=$(mktemp -d)
trap 'rm -r "$work"' EXIT

"$@" "$build/bin/kernels_test" --gtest_filter='*IsAccurate*' --gtest_output="xml:$work/error.xml" \
  >/dev/null
{
  echo kernel,error_in_u
  # A test case's name and its property stand in this order, on one line or two.
  grep -oE 'name="IsAccurate/[^"]*"|name="error_in_u" value="[^"]*"' "$work/error.xml" |
    sed 's|^name="IsAccurate/\(.*\)"$|\1|; s|^name="error_in_u" value="\(.*\)"$|\1|' | paste -d, - -
} >"$work/error.csv"

# The kernels by whose definition the others of their family are defined.
for stem in Fwd_CToC Inv_CToC RToCCS CCSToR Hartley WHT; do
  # By the first digits of the length: about 20 lengths each.
  for digits in 1,2 3,4 5,6,7,8,9; do
    "$@" "$build/bin/zulgen-bench" --plans 4 --csv "$work/piece" \
      --filter "$(echo "$digits" | sed "s/[0-9]/${stem}_&/g")" >/dev/null
    [ -s "$work/speed.csv" ] || head -n 1 "$work/piece" >"$work/speed.csv"
    sed 1d "$work/piece" >>"$work/speed.csv"
  done
done
if [ -x "$build/bin/zulgen-bench-dct4" ]; then
  "$@" "$build/bin/zulgen-bench-dct4" --csv "$work/dct4.csv" >/dev/null
fi

cpu() { sed -n "s/^$1[[:space:]]*: //p" /proc/cpuinfo | head -n 1; }
cached() { sed -n "s/^$1:[A-Z]*=//p" "$build/CMakeCache.txt"; }
{
  echo "processor: $(cpu 'model name') (family $(cpu 'cpu family') model $(cpu model))"
  echo "cores: $(nproc)"
  echo "system: Linux $(uname -r | cut -d. -f1-2) $(uname -m)"
  echo "compiler: $($(cached CMAKE_CXX_COMPILER) --version | head -n 1)"
  echo "peer: FFTW $(dpkg-query -W -f '${Version}' libfftw3-dev:i386 2>/dev/null || echo unknown)"
} >"$work/machine.txt"
mkdir -p "$measured"
mv "$work"/*.csv "$work/machine.txt" "$measured"
