#!/bin/sh
# For the tests of example programs, in a folder of their own, which is gone in the end.
set -eu
work=$(mktemp -d)
trap 'rm -r "$work"' EXIT
cd "$work"
fail() { echo "$1" >&2; cat out error >&2; exit 1; }

# run CODE PROGRAM [ARGUMENT...]: it ends with this code; what it prints goes to out and error.
run() {
  wanted=$1 code=0
  shift
  "$@" >out 2>error || code=$?
  [ "$code" -eq "$wanted" ] || fail "exit code $code instead of $wanted: $*"
}
expect() { grep -Eq "$2" "$1" || fail "nothing like \"$2\" in $1"; }
