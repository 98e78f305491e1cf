# libzulgens8.so.6.1 and its companion libzulcore.so.6.1, and their archives, for every target.

# zulgen_shared_library(name TARGET target EXPORTS version-script OBJECTS object... LIBRARIES lib...
#                       OUTPUT_NAME name [WITH_ARCHIVE]):
# a shared library that needs nothing but the libraries it is told and has no data that could be
# written; and beside it `name`_static, an archive of the same objects.
function(zulgen_shared_library name)
  cmake_parse_arguments(ARG "WITH_ARCHIVE" "TARGET;EXPORTS;OUTPUT_NAME" "OBJECTS;LIBRARIES" ${ARGN})
  set(directory ${ZULGEN_LIBRARY_DIR_${ARG_TARGET}})
  set(options ${ZULGEN_LINK_OPTIONS_${ARG_TARGET}})
  add_library(${name} SHARED ${ARG_OBJECTS})
  # A library finds the other one beside it, or, if it stands in a level's folder, above that.
  set(rpath "$ORIGIN")
  if(NOT ZULGEN_ARCHITECTURE_${ARG_TARGET} STREQUAL ARG_TARGET)
    string(APPEND rpath ":$ORIGIN/../..")
  endif()
  set_target_properties(${name} PROPERTIES
    OUTPUT_NAME ${ARG_OUTPUT_NAME} VERSION 6.1 SOVERSION 6.1 LIBRARY_OUTPUT_DIRECTORY ${directory}
    LINK_DEPENDS ${ARG_EXPORTS} LINKER_LANGUAGE CXX
    BUILD_WITH_INSTALL_RPATH ON INSTALL_RPATH "${rpath}")
  # No start files and no default libraries: they would bring in writable data and the C++ runtime.
  target_link_options(${name} PRIVATE
    ${options} -nostdlib -Wl,--version-script=${ARG_EXPORTS}
    -Wl,-z,defs,-z,text,-z,relro,-z,now,-z,noexecstack)
  target_link_libraries(${name} PRIVATE ${ARG_LIBRARIES} gcc)
  if(ZULGEN_SANITIZE)
    target_link_libraries(${name} PRIVATE asan ubsan)
  endif()
  set(targets ${name})
  if(ARG_WITH_ARCHIVE)
    list(APPEND targets ${name}_static)
    add_library(${name}_static STATIC ${ARG_OBJECTS})
    set_target_properties(${name}_static PROPERTIES
      OUTPUT_NAME ${ARG_OUTPUT_NAME} ARCHIVE_OUTPUT_DIRECTORY ${directory} LINKER_LANGUAGE CXX)
    foreach(library IN LISTS ARG_LIBRARIES)
      if(TARGET ${library})
        target_link_libraries(${name}_static INTERFACE ${library}_static)
      elseif(NOT library STREQUAL c)
        target_link_libraries(${name}_static INTERFACE ${library})
      endif()
    endforeach()
  endif()
  foreach(target IN LISTS targets)
    target_include_directories(${target} INTERFACE
      $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/include> $<INSTALL_INTERFACE:include>)
  endforeach()
endfunction()

# zulgen_objects(name target source...): objects of a library.
function(zulgen_objects name target)
  add_library(${name} OBJECT ${ARGN})
  set_target_properties(${name} PROPERTIES
    CXX_VISIBILITY_PRESET hidden VISIBILITY_INLINES_HIDDEN ON)
  target_compile_options(${name} PRIVATE ${ZULGEN_LIBRARY_OPTIONS_${target}})
  target_include_directories(${name} PRIVATE
    ${PROJECT_SOURCE_DIR}/targets/${target}
    ${PROJECT_SOURCE_DIR}/targets/${ZULGEN_ARCHITECTURE_${target}} ${ZULGEN_GENERATED_DIR_${target}})
  target_link_libraries(${name} PRIVATE zulgen_library_code)
endfunction()

# A plan's tables are made of sines and cosines, each by a call of the function that its source names:
# a compiler that knows what these compute would make one call of two.
set_source_files_properties(dct4/dct4_32f.cpp dct4/dct4_64f.cpp PROPERTIES COMPILE_OPTIONS
  "-fno-builtin-sinf;-fno-builtin-cosf;-fno-builtin-sin;-fno-builtin-cos")

# zulgen_allocator(target): the companion.
function(zulgen_allocator target)
  zulgen_objects(zulcore_objects_${target} ${target} core/zulcore.cpp)
  # With -flto, lld has no global offset table for 32-bit code if all of a library is its own work.
  target_compile_options(zulcore_objects_${target} PRIVATE -fno-lto)
  zulgen_shared_library(zulcore_${target} TARGET ${target} OUTPUT_NAME zulcore WITH_ARCHIVE
    EXPORTS ${PROJECT_SOURCE_DIR}/core/zulcore.map
    OBJECTS $<TARGET_OBJECTS:zulcore_objects_${target}> LIBRARIES c)
endfunction()

set(handwritten wht/long_orders.cpp dct4/dct4_32f.cpp dct4/dct4_64f.cpp)

if(ZULGEN_SANITIZE)
  # What is written by hand, and the short Walsh-Hadamard orders, which are tested with the long ones,
  # over generated sources of another build.
  set(target ${ZULGEN_FIRST_TARGET})
  set(ZULGEN_TARGETS ${target})
  set(ZULGEN_GENERATED_DIR_${target} ${ZULGEN_GENERATED}/${target})
  file(GLOB kernels ${ZULGEN_GENERATED}/${target}/wht_*.0.cpp)
  zulgen_objects(zulgens8_${target} ${target} ${handwritten} wht/buffer_size.cpp ${kernels})
  target_include_directories(zulgens8_${target} INTERFACE ${PROJECT_SOURCE_DIR}/include)
  zulgen_allocator(${target})
  return()
endif()

foreach(target IN LISTS ZULGEN_LIBRARIES)
  zulgen_generate(${target})
  zulgen_objects(zulgen_kernels_${target} ${target}
    ${handwritten} ${ZULGEN_KERNEL_SOURCES} ${ZULGEN_HEADERS} ${ZULGEN_EXPORTS})
  target_link_libraries(zulgen_kernels_${target} PRIVATE zulgen_kernel_code)
  # The compiler's headers of vector operations take longer to read than many a kernel to compile.
  target_precompile_headers(zulgen_kernels_${target} PRIVATE
    ${PROJECT_SOURCE_DIR}/frame/kernel.h ${PROJECT_SOURCE_DIR}/frame/vector.h)
  zulgen_objects(zulgen_frame_${target} ${target}
    frame/version.cpp wht/buffer_size.cpp ${ZULGEN_DISPATCH_SOURCES})
  set(archive)
  if(ZULGEN_ARCHITECTURE_${target} STREQUAL target)
    set(archive WITH_ARCHIVE)
    zulgen_allocator(${target})
  endif()
  zulgen_shared_library(zulgens8_${target} TARGET ${target} OUTPUT_NAME zulgens8 ${archive}
    EXPORTS ${ZULGEN_EXPORTS}
    OBJECTS $<TARGET_OBJECTS:zulgen_kernels_${target}> $<TARGET_OBJECTS:zulgen_frame_${target}>
    LIBRARIES zulcore_${ZULGEN_ARCHITECTURE_${target}} m)
endforeach()

# For programs of the compiler's default kind, inside this build or around it.
foreach(target IN LISTS ZULGEN_TARGETS)
  if((target STREQUAL i386) EQUAL (CMAKE_SIZEOF_VOID_P EQUAL 4))
    foreach(library zulgens8 zulgens8_static zulcore zulcore_static)
      string(REGEX REPLACE "^(zulgens8|zulcore)" "\\1_${target}" name ${library})
      add_library(zulgen::${library} ALIAS ${name})
    endforeach()
  endif()
endforeach()
