#!/bin/sh
# The generator as a program.
# Usage: generator.sh BUILD_DIR
set -eu
build=$1
generate=$build/bin/zulgen-generate
shards=""
for family in dft_complex_32fc dft_complex_64fc dft_real_32f dft_real_64f hartley_32f hartley_64f wht_32f wht_64f; do
  shards="$shards --shards $family=3"
done
work=$(mktemp -d)
trap 'rm -r "$work"' EXIT

fail() { echo "$1" >&2; exit 1; }

mkdir "$work/a" "$work/b"
for out in a b; do
  # shellcheck disable=SC2086
  "$generate" --out "$work/$out" $shards
done
diff -r "$work/a" "$work/b" || fail "two runs give different files"
touch -d '1 hour ago' "$work"/a/*
"$generate" --out "$work/a" $shards
[ -z "$(find "$work/a" -type f -mmin -30)" ] || fail "unchanged files were written again"

name=zulgDFTInv_CToC_12_32fc
[ "$("$generate" --recipe $name)" = "PFA(4, 3)" ] || fail "--recipe"
"$generate" --counts | grep -qx "$name 96 16" || fail "--counts"
"$generate" --print $name | grep -q "ZULGEN_EXPORT zulgResult $name" || fail "--print"
"$generate" --counts | grep -qx "FirstStage<D2, 16> 68 32" || fail "--counts of bodies"
"$generate" --print "BaseCase<float, 8>" | grep -q "struct BaseCase<float, 8>" ||
  fail "--print of bodies"
"$generate" --dot $name | grep -q "digraph $name" || fail "--dot"
"$generate" --variants $name --order "live 0" --order "bisect 2" | grep -q "zulgResult ${name}_1" ||
  fail "--variants"
for wrong in "" "--recipe" "--recipe none" "--out" "--sing" "--out $work --shards x" \
  "--variants $name --order fast"; do
  code=0
  # shellcheck disable=SC2086
  "$generate" $wrong >"$work/out" 2>"$work/error" || code=$?
  [ "$code" -eq 2 ] && [ -s "$work/error" ] || fail "no usage error for: $wrong"
done
code=0
"$generate" --out /nonexistent/directory $shards 2>"$work/error" || code=$?
[ "$code" -eq 1 ] && grep -q "can't write" "$work/error" || fail "a file that can't be written"
