#!/bin/sh
# The generator as a program.
# Usage: generator.sh GENERATOR TARGET_FOLDER
set -eu
generate=$1 target=$2
shift 2
work=$(mktemp -d)
trap 'rm -r "$work"' EXIT

fail() { echo "$1" >&2; exit 1; }

for family in dft_complex_32fc dft_complex_64fc dft_real_32f dft_real_64f hartley_32f hartley_64f wht_32f wht_64f; do
  set -- "$@" --shards $family=3
done
mkdir "$work/out"
"$generate" --target "$target" --out "$work/out" "$@"
touch -d '1 hour ago' "$work"/out/*
"$generate" --target "$target" --out "$work/out" "$@"
[ -z "$(find "$work/out" -type f -mmin -30)" ] || fail "unchanged files were written again"

name=zulgDFTInv_CToC_12_32fc
expect() {  # expect TEXT OPTION...
  text=$1
  shift
  "$generate" "$@" | grep -q -- "$text" || fail "$*"
}
expect "^PFA(4, 3)$" --recipe $name
expect "^$name 96 16$" --counts
expect "^FirstStage<D2, 16> 68 32$" --counts
expect "ZULGEN_VECTOR_KERNEL(${name#zulg}," --target "$target" --print $name
expect "struct BaseCase<float, 8>" --target "$target" --print "BaseCase<float, 8>"
expect "digraph $name" --dot $name
expect "KERNEL(${name#zulg}_1," --target "$target" --variants $name --form "live 0" --form "bisect 2"
expect "^01*$" --arrange zulgDFTInv_CToC_9_32fc
expect "^zulgHartley_8_64f [0-9]" --target "$target" --pair zulgHartley_8_64f
expect "^usage" --help

refuse() {  # refuse CODE MESSAGE OPTION...
  wanted=$1 message=$2 code=0
  shift 2
  "$generate" "$@" >"$work/stdout" 2>"$work/stderr" || code=$?
  [ "$code" -eq "$wanted" ] && grep -q -- "$message" "$work/stderr" ||
    fail "$code, $(head -1 "$work/stderr"): $*"
}
refuse 2 "nothing to do"
refuse 2 "wants a value" --recipe
refuse 2 "no kernel is called none" --recipe none
refuse 2 "what is --sing?" --sing
for count in x wht_32f=0 wht_32f=abc wht_32f=2x; do refuse 2 "not FAMILY=COUNT" --shards $count; done
refuse 2 "no --target" --out "$work/out"
refuse 2 "wants a --form" --variants $name
refuse 1 "not an order: fast" --target "$target" --variants $name --form fast
refuse 1 "no shards for" --target "$target" --out "$work/out"
refuse 1 "can't write" --target "$target" --out /nonexistent/directory "$@"

# A target's table of rows.
cp -r "$target" "$work/target"
edit() {  # edit COMMAND: of sed, on the table; and back
  sed "$1" "$target/kernels.txt" >"$work/target/kernels.txt"
}
edit '3s/.*/zulgNone_1_32f  live 0/'
refuse 1 "kernels.txt:3: no kernel" --target "$work/target" --out "$work/out"
edit '3p'
refuse 1 "kernels.txt:4: no kernel, or a second row" --target "$work/target" --out "$work/out"
edit '$d'
refuse 1 "kernels.txt: no row of ColumnTransform<D2, 16>" --target "$work/target" --out "$work/out"
edit '5s/live\|bisect\|paced/fast/'
refuse 1 "kernels.txt:5: not an order" --target "$work/target" --out "$work/out"
edit 's/^\(zulgHartley_16_64f  *\).*/\1live 0 x8/'
refuse 1 "kernels.txt:[0-9]*: not an order" --target "$work/target" --out "$work/out"
edit 's/^\(zulgHartley_16_64f  *\).*/\1live 0 x2/'
sed '/^zulgHartley_16_64f/d' "$target/pairings.txt" >"$work/target/pairings.txt"
refuse 1 "no pairing for x2: zulgHartley_16_64f" --target "$work/target" --out "$work/out"
echo "zulgHartley_16_64f 0+1" >>"$work/target/pairings.txt"
refuse 1 "zulgHartley_16_64f: the pairing doesn't fit" --target "$work/target" --out "$work/out" "$@"
