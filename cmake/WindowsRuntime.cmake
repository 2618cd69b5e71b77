# The compiler's libraries, stripped, beside the command: Windows looks for them
# there, and all that is loaded shares them, so that exceptions cross its borders.

set(runtime "")
foreach(name libgcc_s_seh-1.dll libssp-0.dll libstdc++-6.dll libwinpthread-1.dll)
  execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${name}
                  OUTPUT_VARIABLE file OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
  if(NOT IS_ABSOLUTE "${file}")
    message(FATAL_ERROR "the compiler has no ${name}")
  endif()
  set(copy ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/${name})
  add_custom_command(OUTPUT ${copy}
    # The time that strip writes into a library's header.
    COMMAND ${CMAKE_COMMAND} -E env SOURCE_DATE_EPOCH=0
            ${CMAKE_STRIP} --strip-unneeded -o ${copy} ${file} DEPENDS ${file} VERBATIM)
  list(APPEND runtime ${copy})
endforeach()
add_custom_target(strake_runtime ALL DEPENDS ${runtime})
install(FILES ${runtime} DESTINATION ${CMAKE_INSTALL_BINDIR})
