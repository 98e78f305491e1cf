# `cpack`: the components of install.cmake as Debian packages. Those of both architectures can be
# installed beside each other: a file that they share is the same in both.

set(CPACK_GENERATOR DEB)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_GROUPING IGNORE)
set(CPACK_COMPONENTS_ALL)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE
  GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_PACKAGE_CONTACT "the zulgen authors <zulgen@example.org>")
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_SOURCE ${PROJECT_NAME})

set(version ${PROJECT_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE})
set(work ${PROJECT_BINARY_DIR}/debian)
configure_file(cmake/debian/changelog.in ${work}/changelog.Debian @ONLY)
execute_process(COMMAND gzip -9nf ${work}/changelog.Debian COMMAND_ERROR_IS_FATAL ANY)

# zulgen_debian_package(component package section depends description): for every architecture.
macro(zulgen_debian_package component package section depends description)
  foreach(target IN LISTS ZULGEN_TARGETS)
    set(name ${component}_${target})
    list(APPEND CPACK_COMPONENTS_ALL ${name})
    install(FILES ${work}/changelog.Debian.gz DESTINATION share/doc/${package}
      COMPONENT ${name} EXCLUDE_FROM_ALL)
    install(FILES LICENSE DESTINATION share/doc/${package} RENAME copyright
      COMPONENT ${name} EXCLUDE_FROM_ALL)
    string(TOUPPER CPACK_DEBIAN_${name} variable)
    set(${variable}_PACKAGE_NAME ${package})
    string(REPLACE "x86-64" amd64 ${variable}_PACKAGE_ARCHITECTURE ${target})
    # CMake 3.25 has no variable for the field behind this one.
    set(${variable}_PACKAGE_SECTION "${section}\nMulti-Arch: same")
    set(${variable}_PACKAGE_DEPENDS "${depends}")
    set(${variable}_DESCRIPTION "${description}")
  endforeach()
endmacro()

# zulgen_debian_library(library package depends description): likewise, of a shared library.
macro(zulgen_debian_library library package depends description)
  zulgen_debian_package(${library} ${package} libs "${depends}" "${description}")
  file(WRITE ${work}/${package}/shlibs "lib${library} ${PROJECT_VERSION} ${package}\n")
  foreach(target IN LISTS ZULGEN_TARGETS)
    string(TOUPPER CPACK_DEBIAN_${library}_${target} variable)
    set(${variable}_PACKAGE_CONTROL_EXTRA
      ${work}/${package}/shlibs ${PROJECT_SOURCE_DIR}/cmake/debian/triggers)
  endforeach()
endmacro()

# Every function that they call in libc and libm is as old as that.
set(libc "libc6 (>= 2.2.5)")
zulgen_debian_library(zulcore libzulcore6.1 "${libc}"
  "allocator of the zulgens8 signal transforms
zulMalloc and zulFree, from which libzulgens8 takes memory for its plans. A
program may put a pair of its own in front.")
zulgen_debian_library(zulgens8 libzulgens8-6.1 "libzulcore6.1 (= ${version}), ${libc}"
  "signal transforms of short, fixed length
One unrolled function a length: complex and real DFT and Hartley transforms of
2 to 64 samples, Walsh-Hadamard transforms, and a DCT-IV of any length by a
plan; in single and double precision, for processors with SSE3. On amd64 the
dynamic loader takes a second build where there is AVX2, which gives the same
bits.")
zulgen_debian_package(dev libzulgens8-dev libdevel
  "libzulgens8-6.1 (= ${version}), libzulcore6.1 (= ${version}), libc6-dev"
  "signal transforms of short, fixed length (development files)
Headers for C and C++, static libraries, files for pkg-config and CMake, the
manual and examples of libzulgens8.")
foreach(target IN LISTS ZULGEN_TARGETS)
  # Side by side as in the sources, for the manual's links.
  install(FILES docs/manual.md DESTINATION share/doc/libzulgens8-dev/docs
    COMPONENT dev_${target} EXCLUDE_FROM_ALL)
  install(DIRECTORY examples DESTINATION share/doc/libzulgens8-dev
    COMPONENT dev_${target} EXCLUDE_FROM_ALL
    PATTERN CMakeLists.txt EXCLUDE PATTERN data EXCLUDE)
  install(FILES cmake/debian/lintian-overrides DESTINATION share/lintian/overrides
    RENAME libzulgens8-6.1 COMPONENT zulgens8_${target} EXCLUDE_FROM_ALL)
endforeach()

include(CPack)
