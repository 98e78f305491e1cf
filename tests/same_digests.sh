#!/bin/sh
# All libraries compute the same bits: every kernel, and the DCT-IV. Its tables come from the system's
# sine, which differs between 32 and 64 bits, in double precision, at some angles of 512 points and more.
# Usage: same_digests.sh LIBRARY_TXT PROGRAM:LIBRARY...
# with the kernel_digests program that can load each library
set -eu
list=$1
shift
work=$(mktemp -d)
trap 'rm -r "$work"' EXIT
for pair in "$@"; do
  "${pair%%:*}" "${pair#*:}" "$list" >"$work/all" || exit 1
  awk -F'[ ,]' '!($1 == "zulgDCT4_64f" && $2 >= 512)' "$work/all" >"$work/digests"
  [ -e "$work/wanted" ] || cp "$work/digests" "$work/wanted"
  diff "$work/wanted" "$work/digests" || { echo "${pair#*:} computes something else"; exit 1; }
done
echo "$(wc -l <"$work/wanted") digests of $# libraries"
