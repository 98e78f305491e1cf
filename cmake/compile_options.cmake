# How code is compiled, whatever the machine: every rounding stays where the source has it.

add_library(zulgen_warnings INTERFACE)
# g++ 12 sees overlaps in every concatenation of strings.
target_compile_options(zulgen_warnings INTERFACE
  -Wall -Wextra $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>)

# Programs, and what is linked into programs alone.
option(ZULGEN_SANITIZE "Watch addresses and undefined behaviour in all code but the kernels" OFF)
add_library(zulgen_program INTERFACE)
target_link_libraries(zulgen_program INTERFACE zulgen_warnings)
if(ZULGEN_SANITIZE)
  set(ZULGEN_SANITIZERS -fsanitize=address,undefined)
  target_compile_options(zulgen_program INTERFACE ${ZULGEN_SANITIZERS} -fno-sanitize-recover)
  target_link_options(zulgen_program INTERFACE ${ZULGEN_SANITIZERS})
endif()

# Code inside the shared libraries. Each function has a section of its own, so that a program that
# links an archive can leave out what it doesn't call.
add_library(zulgen_library_code INTERFACE)
set(optimisation -O2)
if(ZULGEN_SANITIZE)
  set(optimisation -O0)
endif()
target_compile_options(zulgen_library_code INTERFACE $<$<COMPILE_LANGUAGE:CXX>:
  ${optimisation} -fPIC -fomit-frame-pointer -ffp-contract=off -fno-exceptions -fno-rtti
  -fno-asynchronous-unwind-tables -fno-stack-protector -ffunction-sections
  ${ZULGEN_SANITIZERS}>)
target_include_directories(zulgen_library_code INTERFACE
  ${PROJECT_SOURCE_DIR} ${PROJECT_SOURCE_DIR}/include)
target_link_libraries(zulgen_library_code INTERFACE zulgen_warnings)

# Kernels, besides: the order of the statements and of their results' registers is the generator's work. No
# vectoriser touches them; these options have to stand behind -O2, which would turn them on,
# so link this behind zulgen_library_code.
# Functions start at a cache line, so that what a kernel takes does not hang on its neighbours.
add_library(zulgen_kernel_code INTERFACE)
target_compile_options(zulgen_kernel_code INTERFACE $<$<COMPILE_LANGUAGE:CXX>:
  -fno-tree-vectorize -fno-tree-slp-vectorize -falign-functions=64
  $<$<CXX_COMPILER_ID:GNU>:-flive-range-shrinkage -frename-registers>>)
