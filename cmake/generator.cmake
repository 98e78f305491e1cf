# The generator: a program of the host that writes the kernels' sources during the build.

file(GLOB ZULGEN_CODEGEN_SOURCES CONFIGURE_DEPENDS
  ${PROJECT_SOURCE_DIR}/gen/*.cpp
  ${PROJECT_SOURCE_DIR}/networks/*.cpp
  ${PROJECT_SOURCE_DIR}/dft_complex/*.cpp
  ${PROJECT_SOURCE_DIR}/dft_real/*.cpp
  ${PROJECT_SOURCE_DIR}/hartley/*.cpp
  ${PROJECT_SOURCE_DIR}/wht/kernels/*.cpp
  ${PROJECT_SOURCE_DIR}/dct4/kernels/*.cpp)
list(REMOVE_ITEM ZULGEN_CODEGEN_SOURCES ${PROJECT_SOURCE_DIR}/gen/main.cpp)

add_library(codegen STATIC EXCLUDE_FROM_ALL ${ZULGEN_CODEGEN_SOURCES})
target_include_directories(codegen PUBLIC ${PROJECT_SOURCE_DIR})
target_link_libraries(codegen PUBLIC zulgen_program)
# Its assertions are cheap, and stay.
target_compile_options(codegen PRIVATE -UNDEBUG)

add_executable(zulgen-generate gen/main.cpp)
target_link_libraries(zulgen-generate PRIVATE codegen)

# The same code for 32-bit programs that ask what the library holds: the tests, the benchmark.
add_library(codegen32 STATIC EXCLUDE_FROM_ALL ${ZULGEN_CODEGEN_SOURCES})
target_include_directories(codegen32 PUBLIC ${PROJECT_SOURCE_DIR})
target_link_libraries(codegen32 PUBLIC zulgen_m32 zulgen_program)

# The files that every family's kernels are spread over.
set(ZULGEN_SHARDS dft_complex_32fc=12 dft_complex_64fc=12 dft_real_32f=16 dft_real_64f=16
  hartley_32f=4 hartley_64f=4 wht_32f=1 wht_64f=1)

set(ZULGEN_GENERATED_DIR ${CMAKE_BINARY_DIR}/generated)
file(MAKE_DIRECTORY ${ZULGEN_GENERATED_DIR})
set(ZULGEN_EXPORTS ${ZULGEN_GENERATED_DIR}/zulgens8.map)
set(ZULGEN_BODY_HEADERS
  ${ZULGEN_GENERATED_DIR}/wht_bodies.h
  ${ZULGEN_GENERATED_DIR}/dct4_32f.h
  ${ZULGEN_GENERATED_DIR}/dct4_64f.h)
set(ZULGEN_KERNEL_SOURCES)
set(ZULGEN_DISPATCH_SOURCES)
set(arguments --out ${ZULGEN_GENERATED_DIR})
foreach(shards IN LISTS ZULGEN_SHARDS)
  list(APPEND arguments --shards ${shards})
  string(REGEX MATCH "^(.*)=(.*)$" match ${shards})
  list(APPEND ZULGEN_DISPATCH_SOURCES ${ZULGEN_GENERATED_DIR}/${CMAKE_MATCH_1}.dispatch.cpp)
  math(EXPR last "${CMAKE_MATCH_2} - 1")
  foreach(shard RANGE ${last})
    list(APPEND ZULGEN_KERNEL_SOURCES ${ZULGEN_GENERATED_DIR}/${CMAKE_MATCH_1}.${shard}.cpp)
  endforeach()
endforeach()

# Only files that change are written, so that a change in one family compiles that family alone.
add_custom_command(
  OUTPUT ${ZULGEN_KERNEL_SOURCES} ${ZULGEN_DISPATCH_SOURCES} ${ZULGEN_BODY_HEADERS}
    ${ZULGEN_EXPORTS}
  COMMAND zulgen-generate ${arguments}
  DEPENDS zulgen-generate
  COMMENT "Generating the kernels"
  VERBATIM)
