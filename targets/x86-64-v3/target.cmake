# 64-bit processors with AVX2, as the dynamic loader knows them. They could multiply and add in one
# step, which rounds once where two operations round twice: that is left out.
zulgen_target(x86-64-v3
  LEVEL_OF x86-64
  LIBRARY_OPTIONS -march=x86-64-v3 -mno-fma
  # The loader refuses the file where it can't run.
  LINK_OPTIONS -Wl,-z,x86-64-v3)
