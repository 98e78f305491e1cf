#!/bin/sh
# The command lines of all examples, and mdct on recordings that are hard to code.
# Usage: programs.sh MAKE_WAV MDCT PROGRAM...
. "$(dirname "$0")/try.sh"
make_wav=$1 mdct=$2
shift

for program in "$@"; do
  name=${program##*/}
  run 0 "$program" --help
  expect out "^usage: $name "
  run 2 "$program" --wrong
  expect error "^$name: --wrong: no such option"
  code=0
  "$program" >/dev/full 2>error || code=$?
  [ "$code" -eq 1 ] || fail "$name doesn't notice that it can't print"
done

run 1 "$mdct" missing.wav
expect error '^mdct: missing.wav: No such file'
run 2 "$mdct" a.wav b.wav
for amplitude in 0 1e-41 5000 1e29; do
  "$make_wav" 3 32 1 plain 8000 $amplitude >tone.wav
  run 0 "$mdct" tone.wav
  ! grep -qi nan out || fail "no number, at amplitude $amplitude"
  if [ "$amplitude" = 0 ]; then expect out 'silent'; else expect out '^2\^-12 +[0-9.]+ dB'; fi
done
head -c 20000 tone.wav >short.wav
run 0 "$mdct" short.wav
expect error '^mdct: short.wav: it ends early'
"$make_wav" 1 16 2 opposite >opposite.wav
run 0 "$mdct" opposite.wav
expect error '^mdct: opposite.wav: its channels cancel one another'
