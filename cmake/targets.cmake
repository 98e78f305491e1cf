# The machines that the libraries are built for: targets/NAME/target.cmake tells how code is compiled
# for each, the rest of the folder how it is written.
#
# An architecture is what programs are built for: i386, x86-64. Beside it, a level of it is the same
# library for processors that can do more; the dynamic loader chooses.

include(CheckSourceCompiles)

# zulgen_target(name [TRIPLET triplet PROGRAM_OPTIONS option...] [LEVEL_OF architecture]
#               LIBRARY_OPTIONS option... [LINK_OPTIONS option...])
#
# For an architecture, ZULGEN_PROGRAM_OPTIONS_name is what makes a program of it, and the target
# zulgen_program_name what a program of ours is linked with. ZULGEN_LIBRARY_DIR_name is the folder of
# its libraries in the build, ZULGEN_ARCHITECTURE_name an architecture's own name or that of a level's
# architecture.
function(zulgen_target name)
  cmake_parse_arguments(ARG "" "TRIPLET;LEVEL_OF" "PROGRAM_OPTIONS;LIBRARY_OPTIONS;LINK_OPTIONS"
    ${ARGN})
  if(ARG_LEVEL_OF)
    set(architecture ${ARG_LEVEL_OF})
    set(triplet ${ZULGEN_TRIPLET_${architecture}})
    set(options ${ZULGEN_PROGRAM_OPTIONS_${architecture}})
    set(library_dir ${ZULGEN_LIBRARY_DIR_${architecture}}/glibc-hwcaps/${name})
  else()
    set(architecture ${name})
    set(triplet ${ARG_TRIPLET})
    set(options ${ARG_PROGRAM_OPTIONS})
    set(library_dir ${CMAKE_BINARY_DIR}/lib/${triplet})
    add_library(zulgen_program_${name} INTERFACE)
    target_compile_options(zulgen_program_${name} INTERFACE ${options} -ffp-contract=off)
    target_link_options(zulgen_program_${name} INTERFACE ${options})
    target_link_libraries(zulgen_program_${name} INTERFACE zulgen_program)
  endif()
  set(ZULGEN_ARCHITECTURE_${name} ${architecture} PARENT_SCOPE)
  set(ZULGEN_TRIPLET_${name} ${triplet} PARENT_SCOPE)
  set(ZULGEN_PROGRAM_OPTIONS_${name} ${options} PARENT_SCOPE)
  set(ZULGEN_LIBRARY_OPTIONS_${name} ${options} ${ARG_LIBRARY_OPTIONS} PARENT_SCOPE)
  set(ZULGEN_LINK_OPTIONS_${name} ${options} ${ARG_LINK_OPTIONS} PARENT_SCOPE)
  set(ZULGEN_LIBRARY_DIR_${name} ${library_dir} PARENT_SCOPE)
endfunction()

foreach(target i386 x86-64 x86-64-v3)
  include(${PROJECT_SOURCE_DIR}/targets/${target}/target.cmake)
endforeach()

# What this machine's compiler can make programs of.
set(available)
foreach(target x86-64 i386)
  list(JOIN ZULGEN_PROGRAM_OPTIONS_${target} " " CMAKE_REQUIRED_FLAGS)
  check_source_compiles(CXX "#include <cmath>\nint main() { return std::abs(0); }"
    ZULGEN_CAN_BUILD_${target})
  unset(CMAKE_REQUIRED_FLAGS)
  if(ZULGEN_CAN_BUILD_${target})
    list(APPEND available ${target})
  endif()
endforeach()
set(ZULGEN_TARGETS "${available}" CACHE STRING "Architectures to build for, of x86-64 and i386")
set(ZULGEN_LEVELS x86-64-v3 CACHE STRING "Levels of these to build beside the plain libraries")

# The libraries to build, each behind the architecture that it is a level of.
set(ZULGEN_LIBRARIES)
foreach(target IN LISTS ZULGEN_TARGETS)
  if(NOT ZULGEN_CAN_BUILD_${target})
    message(FATAL_ERROR "This compiler can't build for ${target} (Debian: package g++-multilib)")
  endif()
  list(APPEND ZULGEN_LIBRARIES ${target})
  foreach(level IN LISTS ZULGEN_LEVELS)
    if(ZULGEN_ARCHITECTURE_${level} STREQUAL target)
      list(APPEND ZULGEN_LIBRARIES ${level})
    endif()
  endforeach()
endforeach()
if(NOT ZULGEN_LIBRARIES)
  message(FATAL_ERROR "Nothing to build: ZULGEN_TARGETS is empty")
endif()
list(GET ZULGEN_TARGETS 0 ZULGEN_FIRST_TARGET)
message(STATUS "Libraries: ${ZULGEN_LIBRARIES}")
