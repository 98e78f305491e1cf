# The libraries as targets, zulgen::zulgens8 and zulgen::zulcore, or with _static behind the name the
# archives, of the architecture that this program is built for, told by the size of its pointers.
if(CMAKE_SIZEOF_VOID_P EQUAL 4)
  set(zulgen_architecture i386)
else()
  set(zulgen_architecture x86-64)
endif()
include(${CMAKE_CURRENT_LIST_DIR}/zulgen_${zulgen_architecture}.cmake
  OPTIONAL RESULT_VARIABLE zulgen_found)
if(NOT zulgen_found)
  set(zulgen_FOUND FALSE)
  set(zulgen_NOT_FOUND_MESSAGE "zulgen is installed, but not for ${zulgen_architecture} programs.")
endif()
unset(zulgen_architecture)
unset(zulgen_found)
