# Where things lie, built and installed: commands and libraries find each other
# from where they lie, so the build tree has the folders of an installed one.

# The module and the stand-ins. Only the command loads them: where others install
# too, they have a folder of their own.
set(STRAKE_LIBRARY_FOLDER "" CACHE STRING
    "Folder of the module and the stand-ins below CMAKE_INSTALL_LIBDIR; unset: none of their own")
set(STRAKE_LIBDIR ${CMAKE_INSTALL_LIBDIR})
set(STRAKE_FULL_LIBDIR ${CMAKE_INSTALL_FULL_LIBDIR})
if(STRAKE_LIBRARY_FOLDER)
  string(APPEND STRAKE_LIBDIR /${STRAKE_LIBRARY_FOLDER})
  string(APPEND STRAKE_FULL_LIBDIR /${STRAKE_LIBRARY_FOLDER})
endif()

# The way from the commands' folder to the libraries'.
file(RELATIVE_PATH STRAKE_BIN_TO_LIB ${CMAKE_INSTALL_FULL_BINDIR} ${STRAKE_FULL_LIBDIR})

set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/archive)
if(IS_ABSOLUTE "${CMAKE_INSTALL_BINDIR}" OR IS_ABSOLUTE "${CMAKE_INSTALL_LIBDIR}")
  # Folders that no prefix holds together: run paths are written when installing.
  set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)
  set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/lib)
  set(CMAKE_BUILD_RPATH_USE_ORIGIN ON)
else()
  set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/${CMAKE_INSTALL_BINDIR})
  set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/${STRAKE_LIBDIR})
  # CMake rewrites the run path of a file that it installs, and leaves room for
  # that: empty elements, which mean the caller's folder.
  set(CMAKE_BUILD_WITH_INSTALL_RPATH ON)
endif()

# What does not say otherwise is a command.
set(CMAKE_INSTALL_RPATH "$ORIGIN/${STRAKE_BIN_TO_LIB}")
