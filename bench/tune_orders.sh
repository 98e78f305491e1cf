#!/bin/sh
# Measures the kernels under many orders of their statements and prints, for each kernel, the order
# that came out fastest: what the last column of the families' tables is taken from.
#
# Usage: bench/tune_orders.sh SOURCE_DIR BUILD_DIR NAME-FILTER [ORDER...]
# An order is "bisect 3" or "live 0"; by default the first 24 variants of the one and 4 of the other.
set -eu
source=$1 build=$2 filter=$3
shift 3
if [ $# -eq 0 ]; then
  for variant in $(seq 0 23); do set -- "$@" "bisect $variant"; done
  for variant in $(seq 0 3); do set -- "$@" "live $variant"; done
fi
mkdir -p "$build"
figures=$build/orders.csv
: >"$figures"
for order in "$@"; do
  cmake -S "$source" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Release -DZULGEN_TESTS=OFF \
    -DZULGEN_EXAMPLES=OFF -DZULGEN_ORDER="$order" >/dev/null
  cmake --build "$build" --target zulgen-bench >/dev/null
  "$build/bin/zulgen-bench" --plans 0 --filter "$filter" --csv "$build/cycles.csv" >/dev/null
  sed -n "2,\$s/^/$order,/p" "$build/cycles.csv" >>"$figures"
done
# order,kernel,length,cycles,...
awk -F, '
  !($2 in best) || $4 < best[$2] { best[$2] = $4; order[$2] = $1 }
  $1 == "bisect 0" { plain[$2] = $4 }
  !($2 in rank) { rank[$2] = ++count; name[count] = $2 }
  END {
    for (i = 1; i <= count; ++i)
      printf "%-30s %-10s %8.1f cycles (bisect 0: %s)\n", name[i], order[name[i]], best[name[i]], plain[name[i]]
  }' "$figures"
