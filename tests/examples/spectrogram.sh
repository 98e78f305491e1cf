#!/bin/sh
# The spectrogram program on good recordings and broken ones.
# Usage: spectrogram.sh SPECTROGRAM MAKE_WAV
. "$(dirname "$0")/try.sh"
spectrogram=$1 make_wav=$2

is_picture() {  # a PNG of full length
  [ "$(head -c 8 "$1" | od -An -tx1 | tr -d ' \n')" = 89504e470d0a1a0a ] &&
    [ "$(tail -c 8 "$1" | head -c 4)" = IEND ] || fail "$1 is no PNG"
}

rejects() {  # rejects FILE PATTERN: one line that says what is wrong with the file, and no picture
  rm -f spectrogram.png
  run 1 "$spectrogram" "$1"
  expect error "^spectrogram: $1: .*($2)"
  [ "$(wc -l <error)" -eq 1 ] && [ ! -e spectrogram.png ] || fail "more than a message for $1"
}

overwrite() {  # overwrite OFFSET BYTES: in patched.wav
  # shellcheck disable=SC2059
  printf "$2" >bytes
  dd if=bytes of=patched.wav bs=1 seek="$1" conv=notrunc status=none
}

patched() {  # patched OFFSET BYTES: good.wav with these bytes there, as patched.wav
  cp good.wav patched.wav
  overwrite "$@"
}

# The shipped recording, a guitar's chord over E.
run 0 "$spectrogram"
expect out '0 dB is a sine of full scale'
expect out '^ +82\.1 Hz +-18\.[0-9] dB +E2 '
expect out '^ .* dB +B3 '
is_picture spectrogram.png

# Every format, with the same tone first: half the full scale in one of the channels. Of 9 bits and
# more, containers are whole bytes.
for format in "1 8 1" "1 16 1" "1 16 2" "1 24 1" "1 24 5" "1 32 2" "3 32 1" "3 64 3"; do
  for kind in plain extensible; do
    # shellcheck disable=SC2086
    "$make_wav" $format $kind >format.wav
    run 0 "$spectrogram" format.wav tone.png
    case $format in *1) level=-6.0 ;; *2) level=-12.0 ;; *3) level=-15.6 ;; *5) level=-20.0 ;; esac
    expect out "^ +440\.0 Hz +$level dB +A4 +[+-]0 cents"
  done
done
is_picture tone.png

# At every rate; nothing in noise as weak as dither or as strong as a sound; a word about channels that
# leave nothing in their mean.
for rate in 22050 44100 192000; do
  "$make_wav" 3 32 1 plain $rate >rate.wav
  run 0 "$spectrogram" rate.wav
  expect out '^ +440\.0 Hz +-6\.0 dB +A4'
done
for amplitude in 0.00003 0.5; do
  for rate in 2000 44100; do
    "$make_wav" 1 16 1 noise $rate $amplitude >noise.wav
    run 0 "$spectrogram" noise.wav
    expect out 'No tone'
  done
done
"$make_wav" 1 16 2 opposite >opposite.wav
run 0 "$spectrogram" opposite.wav
expect error '^spectrogram: opposite.wav: its channels cancel one another: nothing'

# 16 bits, mono: the header's fields are from byte 32, the samples' length is at 52, they at 56.
"$make_wav" 1 16 1 >good.wav
rejects missing.wav "No such file"
rejects . "Is a directory"
: >empty.wav
rejects empty.wav "empty"
echo "RIFFraff, no samples, a text" >text.wav
rejects text.wav "not a WAV"
for size in 44 53 56 57; do
  head -c $size good.wav >truncated.wav
  rejects truncated.wav "cut short|ends before|no samples"
done
patched 32 '\002' && rejects patched.wav "encoding 2 "
patched 32 '\376\377' && rejects patched.wav "encoding 65534 "
patched 34 '\000\000' && rejects patched.wav "no channels"
patched 34 '\377\377' && rejects patched.wav "block size"
patched 36 '\000\000' && rejects patched.wav "rate is 0"
patched 46 '\000' && rejects patched.wav "0 bits"
patched 46 '\100' && rejects patched.wav "64 bits"
patched 16 '\376\377\377\377' && rejects patched.wav "ends before"
patched 28 '\017' && rejects patched.wav "cut short"
patched 28 '\377\377\377\377' && rejects patched.wav "ends before"
patched 24 'skip' && rejects patched.wav "before their format"
"$make_wav" 3 32 1 >good.wav
patched 60 '\000\000\300\177' && rejects patched.wav "sample 1 is"
patched 60 '\000\000\200\377' && rejects patched.wav "sample 1 is"

# Lengths that the writer didn't know, or that are wrong: what is there counts.
"$make_wav" 1 16 1 >good.wav
for size in '\377\377\377\377' '\000\360\377\177' '\177\076\000\000'; do
  patched 52 "$size" && run 0 "$spectrogram" patched.wav
  expect out 'patched.wav: 1.00 s'
done
patched 52 '\000\000\000\000' && rejects patched.wav "no samples"
overwrite 4 '\060\000\000\000'
run 0 "$spectrogram" patched.wav
expect out 'patched.wav: 1.00 s'
head -c 8057 good.wav >"half é.wav"
run 0 "$spectrogram" "half é.wav"
expect out 'wav: 0.50 s'
expect error 'ends early'

# Less than a frame, and silence.
head -c 76 good.wav >short.wav
run 0 "$spectrogram" short.wav
head -c 8056 /dev/zero >zeros
head -c 56 good.wav | cat - zeros >silence.wav
run 0 "$spectrogram" silence.wav
expect out 'No tone'

# The command line, and pictures that can't be written.
run 2 "$spectrogram" good.wav a.png b.png
expect error '^spectrogram: b.png: one operand too many'
run 1 "$spectrogram" good.wav missing/picture.png
expect error 'missing/picture.png: No such file'
run 1 "$spectrogram" good.wav /dev/full
expect error '/dev/full: No space'
