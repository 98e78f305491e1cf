#!/bin/sh
# Measures kernels under many orders of their statements and prints, for each kernel, the order that
# came out fastest and its cycles, and those of the order that it has now: what the last columns of
# the families' tables are taken from.
#
# Usage: bench/tune_orders.sh BUILD_DIR NAME...
# ORDERS may hold the orders to try, one a line.
set -eu
build=$1
shift
: "${ORDERS:=$(for i in $(seq 0 31); do echo "bisect $i"; done; for i in $(seq 0 7); do echo "live $i"; done)}"
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
# The compiler's command line for a generated file, up to the names of the files.
compile=$(sed -n 's/^  "command": "\(.*\) -o .*zulgen_kernels.dir.*/\1/p' "$build/compile_commands.json" |
  head -n 1)
echo "$ORDERS" >"$work/orders"
for name in "$@"; do
  set --
  while read -r order; do set -- "$@" --order "$order"; done <"$work/orders"
  "$build/bin/zulgen-generate" --variants "$name" "$@" >"$work/variants.cpp"
  $compile -shared -nostdlib -o "$work/variants.so" "$work/variants.cpp"
  "$build/bin/zulgen-variants" "$work/variants.so" "$name" $(wc -l <"$work/orders") |
    paste -d, "$work/orders" - | grep -v nan | sort -t, -k2 -n |
    awk -F, -v name="$name" 'NR == 1 { best = $1; cycles = $2 }
      END { printf "%s,%s,%s,%s\n", name, best, cycles, $2 }'
done
