#!/bin/sh
# What a compiler says of the C++ layer where it refuses: one line before C++20, and the name of what
# isn't met where sizes don't fit.
# Usage: cpp_errors.sh SOURCE_DIR CXX_COMPILER...
set -eu
source=$1
shift
fail() { echo "$1:" >&2; echo "$errors" | head -20 >&2; exit 1; }

# errors_of STANDARD STATEMENT: in `errors`, what the compiler says of it.
errors_of() {
  errors=$(printf '#include "zulgen.hpp"\nint main() { %s }\n' "$2" |
    "$compiler" "-std=$1" -fsyntax-only -I"$source/include" -x c++ - 2>&1) || true
}
refuses() {  # refuses STATEMENT WHAT
  errors_of c++20 "using C = std::complex<float>; using enum zulgen::Scale; $1"
  echo "$errors" | grep -q "$2" || fail "no word of $2 in"
}

for compiler in "$@"; do
  errors_of c++17 ''
  [ "$(echo "$errors" | grep -c 'error:')" -eq 1 ] || fail "not one error"
  echo "$errors" | grep -q 'error:.*needs C++20' || fail "no word of C++20"
  errors_of c++20 'std::complex<float> x[12], y[12]; return zulgen::dft_forward(x, y, zulgen::Scale::kNone);'
  [ -z "$errors" ] || fail "a right call is refused"
  refuses 'C x[12], y[11]; return zulgen::dft_forward(x, y, kNone);' 'EqualSizes<.*12.*11'
  refuses 'float x[65], y[65]; return zulgen::hartley(x, y, kNone);' LengthFrom2To64
  refuses 'float x[6], y[6]; return zulgen::real_dft_forward<zulgen::Layout::kCcs>(x, y, kNone);' \
    SamplesAndSpectrum
  refuses 'float x[24], y[24]; return zulgen::walsh_hadamard(x, y, kNone);' PowerOfTwoFrom2To8192
  refuses 'C x[8]; const C y[8]{}; return zulgen::dft_forward(x, y, kNone);' WritableArray
done
