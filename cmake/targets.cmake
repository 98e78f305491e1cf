# How code for the two machines is compiled: the generator runs on the host, everything else is
# 32-bit code whose arithmetic is SSE, with every rounding where the source has it.

add_library(zulgen_warnings INTERFACE)
# g++ 12 sees overlaps in every concatenation of strings.
target_compile_options(zulgen_warnings INTERFACE -Wall -Wextra $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>)

# Programs, and what is linked into programs alone.
option(ZULGEN_SANITIZE "Watch addresses and undefined behaviour in all code but the kernels" OFF)
add_library(zulgen_program INTERFACE)
target_link_libraries(zulgen_program INTERFACE zulgen_warnings)
if(ZULGEN_SANITIZE)
  set(ZULGEN_SANITIZERS -fsanitize=address,undefined)
  target_compile_options(zulgen_program INTERFACE ${ZULGEN_SANITIZERS} -fno-sanitize-recover)
  target_link_options(zulgen_program INTERFACE ${ZULGEN_SANITIZERS})
endif()

add_library(zulgen_m32 INTERFACE)
target_compile_options(zulgen_m32 INTERFACE -m32 -msse2 -mfpmath=sse -ffp-contract=off)
target_link_options(zulgen_m32 INTERFACE -m32)

# Code inside the shared libraries. SSE3 is there for one move, movddup.
add_library(zulgen_library_code INTERFACE)
target_compile_options(zulgen_library_code INTERFACE
  -O2 -msse3 -fPIC -fomit-frame-pointer -fno-exceptions -fno-rtti -fno-asynchronous-unwind-tables
  -fno-stack-protector
  # So that a program that links an archive can leave out what it doesn't call.
  -ffunction-sections)
if(ZULGEN_SANITIZE)
  target_compile_options(zulgen_library_code INTERFACE ${ZULGEN_SANITIZERS} -fno-sanitize-recover)
endif()
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

# zulgen_library(TARGET name EXPORTS version-script SOURCES file... OBJECTS object... LIBRARIES lib...):
# the shared library `name`, which needs nothing but the libraries it is told and has no data that
# could be written, and beside it `name`_static, an archive of the same objects.
function(zulgen_library)
  cmake_parse_arguments(ARG "" "TARGET;EXPORTS" "SOURCES;OBJECTS;LIBRARIES" ${ARGN})
  set(name ${ARG_TARGET})
  add_library(${name}_objects OBJECT ${ARG_SOURCES})
  set_target_properties(${name}_objects PROPERTIES
    CXX_VISIBILITY_PRESET hidden VISIBILITY_INLINES_HIDDEN ON)
  target_include_directories(${name}_objects PRIVATE ${PROJECT_SOURCE_DIR})
  target_link_libraries(${name}_objects PRIVATE zulgen_library_code)
  set(objects $<TARGET_OBJECTS:${name}_objects> ${ARG_OBJECTS})

  add_library(${name} SHARED ${objects})
  set_target_properties(${name} PROPERTIES
    VERSION 6.1 SOVERSION 6.1 LINK_DEPENDS ${ARG_EXPORTS} LINKER_LANGUAGE CXX
    # A library finds the other one beside it.
    BUILD_WITH_INSTALL_RPATH ON INSTALL_RPATH "$ORIGIN")
  # No start files and no default libraries: they would bring in writable data and the C++ runtime.
  target_link_options(${name} PRIVATE
    -m32 -nostdlib -Wl,--version-script=${ARG_EXPORTS}
    -Wl,-z,defs,-z,text,-z,relro,-z,now,-z,noexecstack)
  target_link_libraries(${name} PRIVATE ${ARG_LIBRARIES} gcc)
  if(ZULGEN_SANITIZE)
    target_link_libraries(${name} PRIVATE asan ubsan)
  endif()

  add_library(${name}_static STATIC ${objects})
  set_target_properties(${name}_static PROPERTIES OUTPUT_NAME ${name} LINKER_LANGUAGE CXX)
  foreach(library IN LISTS ARG_LIBRARIES)
    if(TARGET ${library}_static)
      target_link_libraries(${name}_static INTERFACE ${library}_static)
    elseif(NOT library STREQUAL c)
      target_link_libraries(${name}_static INTERFACE ${library})
    endif()
  endforeach()

  foreach(target ${name} ${name}_static)
    add_library(zulgen::${target} ALIAS ${target})
    target_include_directories(${target} INTERFACE
      $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/include> $<INSTALL_INTERFACE:include>)
    target_compile_options(${target} INTERFACE -m32)
    target_link_options(${target} INTERFACE -m32)
  endforeach()
  set_target_properties(${name} PROPERTIES ZULGEN_LIBRARIES "${ARG_LIBRARIES}")
endfunction()
