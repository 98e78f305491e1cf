# Any 64-bit x86 processor with SSE3.
zulgen_target(x86-64
  TRIPLET x86_64-linux-gnu
  PROGRAM_OPTIONS -m64
  LIBRARY_OPTIONS -msse3)
