# The generator: a program of the host that writes the kernels' sources during the build.

# The passes and the networks, which know no family.
file(GLOB sources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/gen/*.cpp)
file(GLOB networks CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/networks/*.cpp)
add_library(codegen_passes STATIC EXCLUDE_FROM_ALL ${sources} ${networks})
target_include_directories(codegen_passes PUBLIC ${PROJECT_SOURCE_DIR})
target_link_libraries(codegen_passes PUBLIC zulgen_program)

# The families, and what is above them.
file(GLOB sources CONFIGURE_DEPENDS
  ${PROJECT_SOURCE_DIR}/dft_complex/*.cpp
  ${PROJECT_SOURCE_DIR}/dft_real/*.cpp
  ${PROJECT_SOURCE_DIR}/hartley/*.cpp
  ${PROJECT_SOURCE_DIR}/wht/kernels/*.cpp
  ${PROJECT_SOURCE_DIR}/dct4/kernels/*.cpp
  ${PROJECT_SOURCE_DIR}/generate/*.cpp)
list(REMOVE_ITEM sources ${PROJECT_SOURCE_DIR}/generate/main.cpp)
add_library(codegen STATIC EXCLUDE_FROM_ALL ${sources})
target_link_libraries(codegen PUBLIC codegen_passes)

# Assertions are cheap, and stay.
foreach(library codegen_passes codegen)
  target_compile_options(${library} PRIVATE -UNDEBUG)
  if(CMAKE_BUILD_TYPE STREQUAL "Release")
    target_compile_options(${library} PRIVATE -O2)
  endif()
endforeach()

if(NOT ZULGEN_SANITIZE)
  add_executable(zulgen-generate generate/main.cpp)
  target_link_libraries(zulgen-generate PRIVATE codegen)
endif()

# The files that every family's kernels are spread over.
set(ZULGEN_SHARDS dft_complex_32fc=12 dft_complex_64fc=12 dft_real_32f=16 dft_real_64f=16
  hartley_32f=4 hartley_64f=4 wht_32f=1 wht_64f=1)

# zulgen_generate(target): the sources of a target's library, in ZULGEN_GENERATED_DIR_target. Sets
# ZULGEN_KERNEL_SOURCES, ZULGEN_DISPATCH_SOURCES, ZULGEN_HEADERS and ZULGEN_EXPORTS. Only files that
# change are written, so that a change in one family compiles that family alone.
function(zulgen_generate target)
  set(folder ${PROJECT_SOURCE_DIR}/targets/${target})
  set(out ${CMAKE_BINARY_DIR}/generated/${target})
  file(MAKE_DIRECTORY ${out})
  set(kernels)
  set(dispatch)
  set(architecture_folder ${PROJECT_SOURCE_DIR}/targets/${ZULGEN_ARCHITECTURE_${target}})
  set(arguments --target ${folder} --level-of ${architecture_folder} --out ${out})
  foreach(shards IN LISTS ZULGEN_SHARDS)
    list(APPEND arguments --shards ${shards})
    string(REGEX MATCH "^(.*)=(.*)$" match ${shards})
    list(APPEND dispatch ${out}/${CMAKE_MATCH_1}.dispatch.s)
    math(EXPR last "${CMAKE_MATCH_2} - 1")
    foreach(shard RANGE ${last})
      list(APPEND kernels ${out}/${CMAKE_MATCH_1}.${shard}.cpp)
    endforeach()
  endforeach()
  set(headers ${out}/wht_bodies.h ${out}/dct4_32f.h ${out}/dct4_64f.h)
  file(GLOB tables CONFIGURE_DEPENDS ${folder}/*.txt ${folder}/*.in ${architecture_folder}/*.in
    ${architecture_folder}/pairings.txt)
  add_custom_command(
    OUTPUT ${kernels} ${dispatch} ${headers} ${out}/zulgens8.map ${out}/library.txt
    COMMAND zulgen-generate ${arguments}
    DEPENDS zulgen-generate ${tables}
    COMMENT "Generating the kernels for ${target}"
    VERBATIM)
  set(ZULGEN_KERNEL_SOURCES ${kernels} PARENT_SCOPE)
  set(ZULGEN_DISPATCH_SOURCES ${dispatch} PARENT_SCOPE)
  set(ZULGEN_HEADERS ${headers} PARENT_SCOPE)
  set(ZULGEN_EXPORTS ${out}/zulgens8.map PARENT_SCOPE)
  set(ZULGEN_GENERATED_DIR_${target} ${out} PARENT_SCOPE)
endfunction()
