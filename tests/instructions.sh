#!/bin/sh
# What a library's code consists of. i386 and x86-64: nothing above SSE2 but movddup, no arithmetic
# on the x87 stack. i386: no arithmetic on vectors in kernels of real data, every step of which is
# meant to round by itself. x86-64-v3: no instruction in the encoding of older processors, which costs
# dearly among those in the new one; none that multiplies and adds in one rounding; upper halves of
# registers clean at every return and jump to another function.
# Usage: instructions.sh TARGET LIBRARY C_COMPILER
set -eu
target=$1 library=$2 compiler=$3
work=$(mktemp -d)
trap 'rm -r "$work"' EXIT

# strangers FILE: instructions that have no place in their function, with how often they occur.
strangers() {
  objdump -d --no-show-raw-insn "$1" | awk -v target="$target" '
    function found(what) { ++strange[name ": " what] }
    BEGIN {
      moves = "mov(ss|sd|[au]p[sd]|[lh]p[sd]|hlps|lhps|d|q|dq[au]|mskp[sd]|ddup)|" \
        "(shuf|unpck[lh])p[sd]|pshuf(d|lw|hw)|punpck[lh](bw|wd|dq|qdq)"
      logic = "(andn?|x?or)p[sd]|p(andn?|x?or)|ps[rl]l(w|d|q|dq)|psra[wd]|pcmp(eq|gt)[bwd]|" \
        "cmp[a-z]*(s[sd]|p[sd])|u?comis[sd]"
      scalar = "(add|sub|mul|div|sqrt|min|max)s[sd]|cvt(ss2sd|sd2ss|t?s[sd]2si|si2s[sd][lq]?)"
      packed = "(add|sub|mul|div|addsub)p[sd]|p(add|sub)[bwdq]|cvt(ps2pd|pd2ps|dq2p[sd]|t?p[sd]2dq)"
      all_known = "^(" moves "|" logic "|" scalar "|" packed ")$"
      is_packed = "^(" packed ")$"
      is_later = "^(v|popcnt|[lt]zcnt|andn|bextr|bls|bzhi|pdep|pext|rorx|sarx|sh[lr]x|mulx|" \
        "crc32|movbe|ad[co]x)"
      is_v3 = target == "x86-64-v3"
    }
    /^[0-9a-f]+ <.*>:$/ {
      name = substr($2, 2, length($2) - 3)
      is_scalar = target == "i386" && name ~ /_RTo|ToR_|Hartley|CToC_[2-5]_32fc/
      dirty = 0
      next
    }
    /^ *[0-9a-f]+:/ {
      is_vector = /%[xy]mm/
      instructions += is_vector
      if (/%(zmm|mm|k)[0-7]/ || ($2 ~ /^f/ && $2 !~ /^f(ld|st|xch)/)) found($2)
      else if (is_v3 && ((is_vector && $2 !~ /^v/) || $2 ~ /^vfn?m(add|sub)/)) found($2)
      else if (!is_v3 && ($2 ~ is_later || (is_vector && $2 !~ all_known))) found($2)
      else if (is_scalar && $2 ~ is_packed) found($2)
      if (/%ymm/) dirty = 1
      if ($2 == "vzeroupper" || $2 == "vzeroall") dirty = 0
      if (dirty && ($2 ~ /^ret/ || ($2 ~ /^(jmp|call)/ && $0 !~ "<" name "[+>]"))) found("dirty " $2)
    }
    END {
      for (i in strange) print i, strange[i]
      print instructions + 0 >"'"$work/count"'"
    }'
}

# The scan itself: what it has to find, and beside that what may be there.
case $target in
  x86-64-v3)
    wanted=5
    cat >"$work/strange.s" <<'S'
zulgDFTInv_PackToR_9_64f: vaddpd %xmm0, %xmm1, %xmm2
  addpd %xmm0, %xmm1
  vfmadd213pd %xmm0, %xmm1, %xmm2
  vaddps %zmm0, %zmm1, %zmm2
  fmul %st(1), %st
  vzeroupper
  ret
zulgHartley_9_32f: vaddps %ymm0, %ymm1, %ymm2
  ret
S
    ;;
  *)
    wanted=4
    [ "$target" = i386 ] && wanted=6
    cat >"$work/strange.s" <<'S'
zulgDFTInv_PackToR_9_64f: addpd %xmm0, %xmm1
zulgHartley_9_32f: cvtps2pd %xmm0, %xmm1
zulgDFTFwd_CToC_12_32fc: addps %xmm0, %xmm1
  haddps %xmm0, %xmm1
  vaddps %ymm0, %ymm1, %ymm2
  fmul %st(1), %st
  popcnt %eax, %eax
S
    ;;
esac
word=-m64
[ "$target" = i386 ] && word=-m32
"$compiler" $word -c "$work/strange.s" -o "$work/strange.o"
[ "$(strangers "$work/strange.o" | wc -l)" -eq "$wanted" ] || { echo "the scan is blind" >&2; exit 1; }

strangers "$library" | sort >"$work/found"
head -20 "$work/found"
echo "$(cat "$work/count") vector instructions"
[ "$(cat "$work/count")" -gt 50000 ] && [ ! -s "$work/found" ]
