#!/bin/sh
# The programs in a document print what stands below them: every block of C is a whole program, and
# the block of text behind it is its output.
# Usage: document_examples.sh SOURCE_DIR LIBRARY_DIR C_COMPILER DOCUMENT OPTION...
set -eu
source=$1 libraries=$2 compiler=$3 document=$source/$4
shift 4
work=$(mktemp -d)
trap 'rm -r "$work"' EXIT
cd "$work"
awk '
  /^```/ && block != "" { close(block); block = ""; next }
  /^```c$/ { block = ++count ".c"; printf "" > block; next }
  /^```text$/ { block = count ".text"; printf "" > block; next }
  block != "" { print > block }' "$document"
[ -s 1.c ]
for example in *.c; do
  wanted=${example%.c}.text
  [ -s "$wanted" ] || { echo "example $example has no output" >&2; exit 1; }
  "$compiler" "$@" -std=c89 -pedantic-errors -Wall -Werror -I"$source/include" "$example" \
    -L"$libraries" -lzulgens8 -Wl,-rpath,"$libraries" -o program
  ./program | diff "$wanted" - || { echo "example $example prints something else" >&2; exit 1; }
done
