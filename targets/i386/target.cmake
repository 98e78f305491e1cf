# 32-bit x86 with SSE2; SSE3 is there for one move, movddup. Clang takes it that callers align the
# stack on 16 bytes, and spills vectors in any kernel; old callers align it on 4.
zulgen_target(i386
  TRIPLET i386-linux-gnu
  PROGRAM_OPTIONS -m32 -msse2 -mfpmath=sse
  LIBRARY_OPTIONS -msse3 $<$<CXX_COMPILER_ID:Clang>:-mstack-alignment=4>)
