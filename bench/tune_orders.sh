#!/bin/sh
# Measures kernels of a target under many orders of their statements, in their own vectors and in those
# twice and four times as wide that its pairings.txt allows, and writes the fastest form into its table
# where it is faster than the one that stands there by more than 1 %. Prints a line a kernel: name,
# best form, its cycles, those of the form that stood there.
#
# Usage: bench/tune_orders.sh BUILD_DIR TARGET [NAME...]
# without names: all kernels of the table. ORDERS may hold the orders to try, one a line.
set -eu
build=$1 target=$2
shift 2
root=$(dirname "$(realpath "$0")")/..
table=$root/targets/$target/kernels.txt
: "${ORDERS:=$(seq -f "bisect %g" 0 31; seq -f "live %g" 0 7; seq -f "paced %g" 0 29)}"
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
# The compiler's command line for a generated file, up to the names of the files, without the headers
# that were compiled before.
compile=$(sed -n "s|^  \"command\": \"\(.*\) -o [^ ]*zulgen_kernels_$target.dir/generated/.*|\1|p" \
  "$build/compile_commands.json" | head -n 1 | sed 's| -Winvalid-pch -include [^ ]*||')
architecture=$(echo "$target" | sed 's/-v[0-9]$//')
[ $# -gt 0 ] || set -- $(sed -n 's/^\(zulg[^ ]*\) .*/\1/p' "$table")
for name in "$@"; do
  now=$(sed -n "s/^$name  *//p" "$table")
  runs_known=0
  for lines in "$root/targets/$target/pairings.txt" "$root/targets/$architecture/pairings.txt"; do
    [ "$runs_known" -gt 0 ] || runs_known=$(cat "$lines" 2>/dev/null | grep -c "^$name " || true)
  done
  {
    echo "$ORDERS"
    for runs in $(seq "$runs_known"); do
      echo "$ORDERS" | sed "s/\$/ x$((1 << runs))/"
    done
  } | grep -vx "$now" | sed "1i$now" >"$work/orders"
  set --
  while read -r order; do set -- "$@" --form "$order"; done <"$work/orders"
  "$build/bin/zulgen-generate" --target "$root/targets/$target" \
    --level-of "$root/targets/$architecture" --variants "$name" "$@" >"$work/variants.cpp"
  $compile -shared -nostdlib -o "$work/variants.so" "$work/variants.cpp"
  "$build/bin/zulgen-variants_$architecture" "$work/variants.so" "$name" "$(wc -l <"$work/orders")" |
    paste -d, "$work/orders" - | sed '/-$/d' >"$work/times"
  before=$(sed -n "s/^$now,//p" "$work/times")
  best=$(sort -t, -k2 -n "$work/times" | head -n 1)
  echo "$name,$best,$before"
  if [ -n "$before" ] && [ "$(echo "${best#*,} $before" | awk '{print ($1 < $2 * 0.99)}')" = 1 ]; then
    awk -v name="$name" -v order="${best%,*}" \
      '$1 == name {printf "%-27s %s\n", name, order; next} {print}' "$table" >"$work/table"
    cp "$work/table" "$table"
  fi
done
