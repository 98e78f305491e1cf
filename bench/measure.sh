#!/bin/sh
# Measures the figures that the reference pages show, into docs/measured/:
#
#   x86-64.csv, i386.csv   core cycles a call, those of the peers beside ours, as zulgen-bench writes
#                          them: nothing for a figure that could not be taken, - where a peer has no
#                          such transform
#   error.csv              the relative L2 error of every transform
#   machine.txt            what they were measured on
#
# A figure is the lower one of two runs that agree within 3 %, of whole programs, with all other
# functions between them. What has no such two runs is run again, up to RUNS times in all.
#
# Usage: bench/measure.sh [-a ARCHITECTURE] [-f FILTER] [-p PLANS] [-r RUNS] BUILD_DIR [COMMAND...]
#
#   -a, -f   only that architecture, only functions that the benchmark's filter takes; rows of other
#            functions stay as they are
#   -p       plans that FFTW's figure is the best of (default 4)
#   -r       runs at most (default 8); 0 writes down what earlier runs have found
#
# It runs in pieces of some seconds, and goes on where it stopped as long as the build's libraries are
# the same. On a shared machine, COMMAND is what to run each piece under, such as "flock FILE".
set -eu
architectures= filter=zulg plans=4 runs=8
while getopts a:f:p:r: option; do
  case $option in
    a) architectures=$OPTARG ;;
    f) filter=$OPTARG ;;
    p) plans=$OPTARG ;;
    r) runs=$OPTARG ;;
    *) exit 2 ;;
  esac
done
shift $((OPTIND - 1))
[ $# -gt 0 ] || { echo "usage: bench/measure.sh [OPTION...] BUILD_DIR [COMMAND...]" >&2; exit 2; }
build=$(realpath "$1")
shift
measured=$(dirname "$(realpath "$0")")/../docs/measured
mkdir -p "$measured"
all=$(cd "$build/bin" && ls -d zulgen-bench_* | sed 's/^zulgen-bench_//' | sort -r)

cpu() { sed -n "s/^$1[[:space:]]*: //p" /proc/cpuinfo | head -n 1; }
cached() { sed -n "s/^$1:[A-Z]*=//p" "$build/CMakeCache.txt"; }
version() { dpkg-query -W -f '${Version}' "$1:$2" 2>/dev/null || echo none; }
machine() {
  echo "processor: $(cpu 'model name') (family $(cpu 'cpu family') model $(cpu model))"
  echo "cores: $(nproc)"
  echo "system: Linux $(uname -r | cut -d. -f1-2) $(uname -m)"
  echo "compiler: $($(cached CMAKE_CXX_COMPILER) --version | head -n 1)"
  echo "plans of FFTW: $plans"
  for architecture in $all; do
    debian=$([ "$architecture" = i386 ] && echo i386 || echo amd64)
    echo "peers, $architecture: FFTW $(version libfftw3-single3 "$debian")," \
      "KissFFT $(version libkissfft-float131 "$debian")"
  done
}
if [ -e "$measured/machine.txt" ] &&
  [ "$(machine | head -n 1)" != "$(head -n 1 "$measured/machine.txt")" ]; then
  echo "docs/measured holds figures of another machine: remove them first" >&2
  exit 1
fi
machine >"$measured/machine.txt"

# Rows of all runs, behind their heads, become rows of figures, of all functions that have been run.
figures() {
  awk -F, -v OFS=, '
    $1 == "function" {
      for (i = 3; i <= NF; ++i) {
        name[i] = $i
        if (!($i in known)) { known[$i]; column[++columns] = $i }
      }
      next
    }
    !($1 in length_of) { length_of[$1] = $2; function_at[++functions] = $1 }
    {
      for (i = 3; i <= NF; ++i) {
        at = $1 OFS name[i]
        if ($i == "-") { low[at] = next_low[at] = "-" }
        if ($i == "" || $i == "-") continue
        if (!(at in low) || $i < low[at] + 0) { next_low[at] = low[at]; low[at] = $i }
        else if (next_low[at] == "" || $i < next_low[at] + 0) next_low[at] = $i
      }
    }
    END {
      line = "function,length"
      for (i = 1; i <= columns; ++i) line = line OFS column[i]
      print line
      for (f = 1; f <= functions; ++f) {
        line = function_at[f] OFS length_of[function_at[f]]
        for (i = 1; i <= columns; ++i) {
          at = function_at[f] OFS column[i]
          agreed = next_low[at] != "" && (low[at] == "-" || next_low[at] <= 1.03 * low[at])
          line = line OFS (agreed ? low[at] : "")
        }
        print line
      }
    }' "$1"
}

# The functions of a list that have no row of figures without gaps.
unfinished() {
  awk -F, 'FILENAME == ARGV[1] { if ($0 !~ /,(,|$)/) done[$1]; next } !($1 in done)' "$1" "$2"
}

work=$(mktemp -d)
trap 'rm -r "$work"' EXIT
left=0
for architecture in ${architectures:-$all}; do
  bench=$build/bin/zulgen-bench_$architecture
  "$bench" --filter "$filter" --list >"$work/list"
  state=$(find "$build/lib" -name 'libzulgens8.so.6.1' | sort | xargs cat | sha256sum | cut -c 1-12)
  state=$build/measured/$state-$plans
  mkdir -p "$state"
  kept=$state/$architecture
  touch "$kept"
  run=0
  while
    figures "$kept" >"$work/figures"
    unfinished "$work/figures" "$work/list" >"$work/todo"
    [ -s "$work/todo" ] && [ $run -lt "$runs" ]
  do
    # A function that was run as often as any other waits for these.
    run=$(awk -F, 'FILENAME == ARGV[1] { runs[$1]++; next } FNR == 1 || runs[$1] < least { least = runs[$1] }
      END { print least + 0 }' "$kept" "$work/todo")
    [ "$run" -lt "$runs" ] || break
    awk -F, -v run="$run" 'FILENAME == ARGV[1] { runs[$1]++; next } runs[$1] == run' "$kept" "$work/todo" |
      head -n 10 >"$work/now"
    echo "$architecture: run $((run + 1)) of $(head -n 1 "$work/now"), $(wc -l <"$work/todo") left"
    "$@" "$bench" --plans "$plans" --csv "$work/piece" \
      --filter "$(sed 's/$/_/' "$work/now" | paste -s -d,)" >/dev/null
    cat "$work/piece" >>"$kept"
  done
  left=$((left + $(wc -l <"$work/todo")))
  [ -s "$kept" ] || continue
  csv=$measured/$architecture.csv
  if [ -e "$csv" ] && [ "$(head -n 1 "$csv")" = "$(head -n 1 "$work/figures")" ]; then
    awk -F, 'FILENAME == ARGV[1] { measured[$1]; print; next } !($1 in measured)' "$work/figures" "$csv" \
      >"$work/csv"
  else
    cp "$work/figures" "$work/csv"
  fi
  # In the benchmark's order.
  { head -n 1 "$work/csv"
    "$bench" --filter zulg --list |
      awk -F, 'FILENAME == ARGV[1] { row[$1] = $0; next } $1 in row { print row[$1] }' "$work/csv" -
  } >"$csv"
done

# Errors follow from the data flows and hang on no machine, but for the sines in the DCT-IV's tables.
"$@" env ZULGEN_ERROR_CSV="$work/error.csv" "$build/bin/accuracy_test" \
  --gtest_filter='*AreAccurate' >/dev/null
"$@" env ZULGEN_ERROR_CSV="$work/error.csv" "$build/bin/dct4_test_$(echo "$all" | head -n 1)" \
  --gtest_filter='Dct4/*.IsAccurate' >/dev/null
mv "$work/error.csv" "$measured"
if [ "$left" -gt 0 ]; then
  echo "$left functions have figures missing: other work on this machine did not let two runs agree"
  exit 1
fi
