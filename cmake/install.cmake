# `cmake --install`: libraries, headers, a CMake package and pkg-config files. Nothing that is
# installed knows where it is: the tree can be moved.

# The host's own multiarch folder, which GNUInstallDirs may choose, is not the place of 32-bit code.
set(CMAKE_INSTALL_LIBDIR lib CACHE STRING "Where libraries go, under the prefix")
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

install(TARGETS zulgens8 zulgens8_static zulcore zulcore_static EXPORT zulgenConfig)
install(DIRECTORY include/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/zulgen)
install(EXPORT zulgenConfig NAMESPACE zulgen:: DESTINATION ${package_dir})
# The targets bring -m32 along, so that it doesn't matter what a program is compiled for by default.
write_basic_package_version_file(${PROJECT_BINARY_DIR}/zulgenConfigVersion.cmake
  COMPATIBILITY SameMinorVersion ARCH_INDEPENDENT)
install(FILES ${PROJECT_BINARY_DIR}/zulgenConfigVersion.cmake DESTINATION ${package_dir})

# zulgen_pkg_config(target description): a file for pkg-config, with paths relative to itself.
function(zulgen_pkg_config target description)
  set(folder ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
  file(RELATIVE_PATH prefix /${folder} /)
  get_target_property(libraries ${target} ZULGEN_LIBRARIES)
  set(requires)
  set(libs)
  foreach(library IN LISTS libraries)
    if(TARGET ${library})
      list(APPEND requires ${library})
    elseif(library AND NOT library STREQUAL c)
      list(APPEND libs -l${library})
    endif()
  endforeach()
  list(JOIN requires " " requires)
  list(JOIN libs " " libs)
  configure_file(cmake/library.pc.in ${PROJECT_BINARY_DIR}/${target}.pc @ONLY)
  install(FILES ${PROJECT_BINARY_DIR}/${target}.pc DESTINATION ${folder})
endfunction()

zulgen_pkg_config(zulgens8 "Signal transforms of short, fixed length for 32-bit x86")
zulgen_pkg_config(zulcore "The allocator that zulgens8 takes memory from")
