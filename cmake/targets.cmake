# How code for the two machines is compiled: the generator runs on the host, everything else is
# 32-bit code whose arithmetic is SSE, with every rounding where the source has it.

add_library(zulgen_warnings INTERFACE)
# g++ 12 sees overlaps in every concatenation of strings.
target_compile_options(zulgen_warnings INTERFACE -Wall -Wextra -Wno-restrict)

# Programs, and what is linked into programs alone.
option(ZULGEN_SANITIZE "Watch addresses and undefined behaviour in all programs" OFF)
add_library(zulgen_program INTERFACE)
target_link_libraries(zulgen_program INTERFACE zulgen_warnings)
if(ZULGEN_SANITIZE)
  target_compile_options(zulgen_program INTERFACE -fsanitize=address,undefined -fno-sanitize-recover)
  target_link_options(zulgen_program INTERFACE -fsanitize=address,undefined)
endif()

add_library(zulgen_m32 INTERFACE)
target_compile_options(zulgen_m32 INTERFACE -m32 -msse2 -mfpmath=sse -ffp-contract=off)
target_link_options(zulgen_m32 INTERFACE -m32)

# Code inside the shared libraries. SSE3 is there for one move, movddup.
add_library(zulgen_library_code INTERFACE)
target_compile_options(zulgen_library_code INTERFACE
  -O2 -msse3 -fPIC -fomit-frame-pointer -fno-exceptions -fno-rtti -fno-asynchronous-unwind-tables
  -fno-stack-protector)
target_include_directories(zulgen_library_code INTERFACE ${PROJECT_SOURCE_DIR}/include)
target_link_libraries(zulgen_library_code INTERFACE zulgen_m32 zulgen_warnings)

# Kernels: the order of the statements and of their results' registers is the generator's work. No
# vectoriser touches them; these options have to stand behind -O2, which would turn them on. Functions
# start at a cache line, so that what a kernel takes does not hang on its neighbours.
add_library(zulgen_kernel_code INTERFACE)
target_compile_options(zulgen_kernel_code INTERFACE
  -fno-tree-vectorize -fno-tree-slp-vectorize -falign-functions=64
  $<$<CXX_COMPILER_ID:GNU>:-flive-range-shrinkage -frename-registers>)
target_link_libraries(zulgen_kernel_code INTERFACE zulgen_library_code)

# zulgen_shared_library(TARGET name NAME file-name EXPORTS version-script): a shared library that
# needs nothing but the C libraries it is told, and has no data that could be written.
function(zulgen_shared_library)
  cmake_parse_arguments(ARG "" "TARGET;NAME;EXPORTS" "SOURCES;LIBRARIES" ${ARGN})
  add_library(${ARG_TARGET} SHARED ${ARG_SOURCES})
  set_target_properties(${ARG_TARGET} PROPERTIES
    OUTPUT_NAME ${ARG_NAME} VERSION 6.1 SOVERSION 6.1
    CXX_VISIBILITY_PRESET hidden VISIBILITY_INLINES_HIDDEN ON
    LINK_DEPENDS ${ARG_EXPORTS}
    # One library of the two finds the other beside it.
    BUILD_WITH_INSTALL_RPATH ON INSTALL_RPATH "$ORIGIN")
  target_include_directories(${ARG_TARGET} PUBLIC $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/include>)
  # No start files and no default libraries: they would bring in writable data and the C++ runtime.
  target_link_options(${ARG_TARGET} PRIVATE
    -m32 -nostdlib -Wl,--version-script=${ARG_EXPORTS}
    -Wl,-z,defs,-z,text,-z,relro,-z,now,-z,noexecstack)
  target_link_libraries(${ARG_TARGET} PRIVATE ${ARG_LIBRARIES} gcc)
endfunction()
