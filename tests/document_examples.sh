#!/bin/sh
# The programs in a document print what stands below them: every block of C or C++ is a whole program,
# and the block of text behind it is its output.
# Usage: document_examples.sh SOURCE_DIR LIBRARY_DIR C_COMPILER CXX_COMPILER DOCUMENT OPTION...
set -eu
source=$1 libraries=$2 cc=$3 cxx=$4 document=$source/$5
shift 5
work=$(mktemp -d)
trap 'rm -r "$work"' EXIT
cd "$work"
awk '
  /^```/ && block != "" { close(block); block = ""; next }
  /^```c(pp)?$/ { block = ++count "." substr($0, 4); printf "" > block; next }
  /^```text$/ { block = count ".text"; printf "" > block; next }
  block != "" { print > block }' "$document"
[ -s 1.c ]
for example in *.c *.cpp; do
  [ -e "$example" ] || continue
  wanted=${example%.*}.text
  [ -s "$wanted" ] || { echo "example $example has no output" >&2; exit 1; }
  case $example in
    *.c) compile="$cc -std=c89 -pedantic-errors" ;;
    *.cpp) compile="$cxx -std=c++20 -Wextra" ;;
  esac
  $compile "$@" -Wall -Werror -I"$source/include" "$example" \
    -L"$libraries" -lzulgens8 -lzulcore -lm -Wl,-rpath,"$libraries" -o program
  ./program | diff "$wanted" - || { echo "example $example prints something else" >&2; exit 1; }
done
