# Where things lie, built and installed: commands and libraries find each other
# from where they lie, so the build tree has the folders of an installed one.

# The way from the commands' folder to the libraries'.
file(RELATIVE_PATH STRAKE_BIN_TO_LIB ${CMAKE_INSTALL_FULL_BINDIR} ${CMAKE_INSTALL_FULL_LIBDIR})

set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/archive)
if(IS_ABSOLUTE "${CMAKE_INSTALL_BINDIR}" OR IS_ABSOLUTE "${CMAKE_INSTALL_LIBDIR}")
  # Folders that no prefix holds together: run paths are written when installing.
  set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)
  set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/lib)
  set(CMAKE_BUILD_RPATH_USE_ORIGIN ON)
else()
  set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/${CMAKE_INSTALL_BINDIR})
  set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/${CMAKE_INSTALL_LIBDIR})
  # CMake rewrites the run path of a file that it installs, and leaves room for
  # that: empty elements, which mean the caller's folder.
  set(CMAKE_BUILD_WITH_INSTALL_RPATH ON)
endif()

# What does not say otherwise is a command.
set(CMAKE_INSTALL_RPATH "$ORIGIN/${STRAKE_BIN_TO_LIB}")
