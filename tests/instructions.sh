#!/bin/sh
# What the library's code consists of: nothing above SSE2 but movddup, no arithmetic on the x87
# stack, and in the scalar kernels, which every step is meant to round by itself, no arithmetic on
# vectors.
# Usage: instructions.sh LIBRARY ASSEMBLER
set -eu
library=$1 assembler=$2
work=$(mktemp -d)
trap 'rm -r "$work"' EXIT

# strangers FILE: instructions that have no place in their function, with how often they occur.
strangers() {
  objdump -d --no-show-raw-insn "$1" | awk '
    BEGIN {
      moves = "mov(ss|sd|[au]p[sd]|[lh]p[sd]|hlps|lhps|d|q|dq[au]|mskp[sd]|ddup)|" \
        "(shuf|unpck[lh])p[sd]|pshuf(d|lw|hw)|punpck[lh](bw|wd|dq|qdq)"
      logic = "(andn?|x?or)p[sd]|p(andn?|x?or)|ps[rl]l(w|d|q|dq)|psra[wd]|pcmp(eq|gt)[bwd]|" \
        "cmp[a-z]*(s[sd]|p[sd])|u?comis[sd]"
      scalar = "(add|sub|mul|div|sqrt|min|max)s[sd]|cvt(ss2sd|sd2ss|t?s[sd]2si|si2s[sd]l?)"
      packed = "(add|sub|mul|div)p[sd]|p(add|sub)[bwdq]|cvt(ps2pd|pd2ps|dq2p[sd]|t?p[sd]2dq)"
      all_known = "^(" moves "|" logic "|" scalar "|" packed ")$"
      is_packed = "^(" packed ")$"
      is_later = "^(v|popcnt|[lt]zcnt|andn|bextr|bls|bzhi|pdep|pext|rorx|sarx|sh[lr]x|mulx|crc32|movbe|ad[co]x)"
    }
    /^[0-9a-f]+ <.*>:$/ {
      name = substr($2, 2, length($2) - 3)
      is_scalar = name ~ /_RTo|ToR_|Hartley|CToC_[2-5]_32fc/
      next
    }
    /^ *[0-9a-f]+:/ {
      is_vector = /%xmm/
      if (/%([yz]mm|mm|k[0-7])/ || $2 ~ is_later || (is_vector && $2 !~ all_known) ||
          (is_scalar && $2 ~ is_packed) || ($2 ~ /^f/ && $2 !~ /^f(ld|st|xch)/)) {
        ++strange[name ": " $2]
      }
      instructions += is_vector
    }
    END {
      for (i in strange) print i, strange[i]
      print instructions + 0 >"'"$work/count"'"
    }'
}

# The scan itself: one of each kind, and a packed addition where it may be.
cat >"$work/strange.s" <<'S'
zulgDFTInv_PackToR_9_64f: addpd %xmm0, %xmm1
zulgHartley_9_32f: cvtps2pd %xmm0, %xmm1
zulgDFTFwd_CToC_12_32fc: addps %xmm0, %xmm1
  haddps %xmm0, %xmm1
  vaddps %ymm0, %ymm1, %ymm2
  fmul %st(1), %st
  popcnt %eax, %eax
S
"$assembler" -m32 -c "$work/strange.s" -o "$work/strange.o"
[ "$(strangers "$work/strange.o" | wc -l)" -eq 6 ] || { echo "the scan is blind" >&2; exit 1; }

strangers "$library" | sort >"$work/found"
head -20 "$work/found"
echo "$(cat "$work/count") vector instructions"
[ "$(cat "$work/count")" -gt 100000 ] && [ ! -s "$work/found" ]
