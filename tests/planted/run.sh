#!/bin/sh
# Whether the tests notice mistakes: plants each fault in a copy of the sources, builds the tests
# that its patch asks for, and tells which of them fail. Fails itself if none does. What compares
# kernels with digests is left out, since it sees every change without knowing what is right.
# Usage: run.sh FOLDER [PATCH...], where FOLDER is for the copy, and kept
set -eu
source=$(realpath "$(dirname "$0")/../..")
mkdir -p "$1"
copy=$(realpath "$1") build=$copy/build
shift
[ $# -gt 0 ] || set -- "$source"/tests/planted/*.patch
# The tests that a patch may ask for.
host="complex_roundings_test constants_test counts_test passes_test real_counts_test
  real_kernels_test real_roundings_test rows_test stages_test"
frame=frame_test_x86-64
library="dispatch_test_x86-64 wht_test_x86-64 dct4_test_x86-64 dct4_planner_32f_test_x86-64
  dct4_planner_64f_test_x86-64"

# Only what differs is copied, so that only that is compiled again.
(cd "$source" && git ls-files) | while read -r file; do
  cmp -s "$source/$file" "$copy/sources/$file" && continue
  mkdir -p "$(dirname "$copy/sources/$file")"
  cp "$source/$file" "$copy/sources/$file"
done
cmake -S "$copy/sources" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Release -DZULGEN_BENCH=OFF \
  -DZULGEN_EXAMPLES=OFF -DZULGEN_DOCS=OFF -DZULGEN_TARGETS=x86-64 >"$copy/log"

# The tests of this kind that fail.
failing() {
  eval "tests=\$$1"
  programs=$tests
  [ "$1" != library ] || programs="$tests kernel_checks_x86-64 zulgens8_x86-64"
  # shellcheck disable=SC2086
  ninja -C "$build" $programs >"$copy/log" 2>&1 || { echo build; return; }
  for test in $tests; do
    "$build/bin/$test" >"$copy/$test.log" 2>&1 || echo "$test"
  done
  [ "$1" = library ] || return 0
  "$build/bin/kernel_checks_x86-64" "$(find "$build/lib" -name libzulgens8.so.6.1 | head -1)" \
    "$build/generated/x86-64/library.txt" "$source/tests/digests.txt" >"$copy/checks.log" || true
  ! grep : "$copy/checks.log" | grep -qv 'not the bits of its data flow' || echo kernel_checks
}

for kind in $(sed -n 's/^Tests: //p' "$@" | sort -u); do
  caught=$(failing "$kind")
  [ -z "$caught" ] || { echo "without a fault:" $caught; exit 1; }
done
missed=0
for patch in "$@"; do
  kind=$(sed -n 's/^Tests: //p' "$patch")
  patch -s -d "$copy/sources" -p1 <"$patch"
  caught=$(failing "$kind")
  patch -s -R -d "$copy/sources" -p1 <"$patch"
  printf '%-22s %s\n' "$(basename "$patch" .patch)" "$(echo ${caught:-NOT CAUGHT})"
  case $caught in "" | build) missed=1 ;; esac
done
exit $missed
