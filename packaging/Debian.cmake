# The Debian packages: strake out of the part runtime, strake-dev out of the part
# dev. The version and its date stand in debian/changelog.

file(STRINGS debian/changelog first_line LIMIT_COUNT 1)
string(REGEX MATCH "^strake \\((.*)-([^-]*)\\) " first_line "${first_line}")
if(NOT CMAKE_MATCH_1 STREQUAL PROJECT_VERSION)
  message(FATAL_ERROR "packaging/debian/changelog begins with version '${CMAKE_MATCH_1}', "
                      "the project's is ${PROJECT_VERSION}")
endif()

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME strake)
set(CPACK_DEBIAN_PACKAGE_RELEASE ${CMAKE_MATCH_2})
set(CPACK_PACKAGE_CONTACT "Strake developers <strake@example.org>")
# Each package has its own.
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_VERBATIM_VARIABLES ON)

# The module and the stand-ins lie two folders below /usr/lib: for libraries that
# lie higher CPack has the loader's cache written anew, which they are no part of.
set(CPACK_COMPONENTS_ALL runtime dev)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
# Manuals and changelogs are compressed where only Debian wants them so.
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_SOURCE_DIR}/DebianFiles.cmake)
set(CPACK_STRAKE_DEBIAN_FILES ${CMAKE_CURRENT_SOURCE_DIR}/debian)

set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME strake)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION admin)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SHLIBDEPS ON)
set(CPACK_COMPONENT_RUNTIME_DESCRIPTION
"service-processor collector plug-in and its command
Collects what a server's service processors say about themselves: network and
dial configuration, their clocks, voltages, temperatures and fan speeds. It
speaks to Orlo adapter cards and to integrated Tavit processors.
.
This package has the plug-in, a loadable module for a host framework that
gathers a server's system data as CIM instances, the command strake, which
plays the host, and stand-ins for host and driver, which answer from a
description of a server.")

set(CPACK_DEBIAN_DEV_PACKAGE_NAME strake-dev)
set(CPACK_DEBIAN_DEV_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEV_PACKAGE_ARCHITECTURE all)
set(CPACK_DEBIAN_DEV_PACKAGE_DEPENDS "libboost-dev (>= 1.74)")
set(CPACK_DEBIAN_DEV_PACKAGE_RECOMMENDS strake)
set(CPACK_COMPONENT_DEV_DESCRIPTION
"service-processor collector plug-in - declarations
Collects what a server's service processors say about themselves: network and
dial configuration, their clocks, voltages, temperatures and fan speeds.
.
This package has what hosts that load the plug-in, and libraries that it is
linked against, are built with: the declarations of host and driver, a CMake
package, a pkg-config file and examples.")

include(CPack)
