# `cmake --install`: libraries, headers, a CMake package and pkg-config files. Nothing that is
# installed knows where it is: the tree can be moved.
#
# Every architecture has three components, zulgens8_ARCHITECTURE, zulcore_ARCHITECTURE and
# dev_ARCHITECTURE.

include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

install(FILES LICENSE CHANGELOG.md SECURITY.md DESTINATION share/doc/zulgen COMPONENT doc)

list(LENGTH ZULGEN_TARGETS count)
if(count GREATER 1)
  set(multiarch ON)
else()
  set(multiarch OFF)
endif()
option(ZULGEN_MULTIARCH
  "Put libraries into lib/TRIPLET; off, as where there is one architecture, into lib" ${multiarch})

# zulgen_pkg_config(library architecture folder description): a file for pkg-config, with paths
# relative to itself.
function(zulgen_pkg_config library architecture folder description)
  file(RELATIVE_PATH prefix /${folder}/pkgconfig /)
  set(options)
  if(architecture STREQUAL i386)
    set(options "-m32 ")
  endif()
  set(requires)
  set(libs)
  if(library STREQUAL zulgens8)
    set(requires zulcore)
    set(libs -lm)
  endif()
  set(file ${PROJECT_BINARY_DIR}/pkgconfig/${architecture}/${library}.pc)
  configure_file(cmake/library.pc.in ${file} @ONLY)
  install(FILES ${file} DESTINATION ${folder}/pkgconfig COMPONENT dev_${architecture})
endfunction()

write_basic_package_version_file(${PROJECT_BINARY_DIR}/zulgenConfigVersion.cmake
  COMPATIBILITY SameMajorVersion ARCH_INDEPENDENT)

foreach(target IN LISTS ZULGEN_LIBRARIES)
  set(architecture ${ZULGEN_ARCHITECTURE_${target}})
  set(folder lib)
  if(ZULGEN_MULTIARCH)
    set(folder lib/${ZULGEN_TRIPLET_${architecture}})
  endif()
  if(NOT architecture STREQUAL target)
    # The dynamic loader looks there by itself; nothing links with it.
    install(TARGETS zulgens8_${target} LIBRARY DESTINATION ${folder}/glibc-hwcaps/${target}
      COMPONENT zulgens8_${architecture} NAMELINK_SKIP)
    continue()
  endif()
  set(dev COMPONENT dev_${target})
  foreach(library zulgens8 zulcore)
    set_target_properties(${library}_${target} PROPERTIES EXPORT_NAME ${library})
    set_target_properties(${library}_${target}_static PROPERTIES EXPORT_NAME ${library}_static)
    install(TARGETS ${library}_${target} ${library}_${target}_static EXPORT zulgen_${target}
      LIBRARY DESTINATION ${folder} COMPONENT ${library}_${target} NAMELINK_${dev}
      ARCHIVE DESTINATION ${folder} ${dev})
  endforeach()
  install(DIRECTORY include/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} ${dev})
  # One package for all architectures, which finds the one that a program is built for. Debian looks
  # for that of the program's architecture alone.
  set(package_dir lib/cmake/zulgen)
  if(ZULGEN_DEBIAN)
    set(package_dir ${folder}/cmake/zulgen)
  endif()
  install(EXPORT zulgen_${target} NAMESPACE zulgen:: DESTINATION ${package_dir} ${dev})
  install(FILES ${PROJECT_BINARY_DIR}/zulgenConfigVersion.cmake cmake/zulgenConfig.cmake
    DESTINATION ${package_dir} ${dev})
  zulgen_pkg_config(zulgens8 ${target} ${folder} "Signal transforms of short, fixed length for x86")
  zulgen_pkg_config(zulcore ${target} ${folder} "The allocator that zulgens8 takes memory from")
endforeach()
