# Windows has no folders that programs share: documents lie where a prefix begins,
# beside each other as in the tree, and nothing is installed to build against. Of
# the compiler's libraries, which lie beside the command, the licences too.

install(FILES ${PROJECT_SOURCE_DIR}/README.md ${PROJECT_SOURCE_DIR}/SECURITY.md
              ${PROJECT_SOURCE_DIR}/LICENSE DESTINATION .)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/docs ${PROJECT_SOURCE_DIR}/servers DESTINATION .)

# version_of(VARIABLE PACKAGE): as Debian has it on this machine.
function(version_of variable package)
  execute_process(COMMAND dpkg-query --show --showformat=\${Version} ${package}
                  OUTPUT_VARIABLE version COMMAND_ERROR_IS_FATAL ANY)
  set(${variable} "${version}" PARENT_SCOPE)
endfunction()

set(gcc gcc-mingw-w64-x86-64-posix-runtime)
set(mingw mingw-w64-x86-64-dev)
version_of(gcc_version ${gcc})
version_of(mingw_version ${mingw})
set(licences ${CMAKE_CURRENT_BINARY_DIR}/licences)
configure_file(windows/licences.txt.in ${licences}/README.txt @ONLY)
install(FILES ${licences}/README.txt DESTINATION licences)
install(FILES debian/copyright RENAME strake.txt DESTINATION licences)
install(FILES /usr/share/doc/${gcc}/copyright RENAME gcc.txt DESTINATION licences)
install(FILES /usr/share/doc/${mingw}/copyright RENAME mingw-w64.txt DESTINATION licences)
install(FILES /usr/share/common-licenses/GPL-3 RENAME GPL-3.txt DESTINATION licences)
