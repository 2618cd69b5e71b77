# Writes completion of the built command for every shell:
#   cmake -D "COMMAND=STRAKE" -D FOLDER=FOLDER -P WriteCompletion.cmake
# COMMAND may begin with an emulator and its arguments.
foreach(shell bash zsh fish)
  execute_process(COMMAND ${COMMAND} completion ${shell}
                  OUTPUT_VARIABLE text COMMAND_ERROR_IS_FATAL ANY)
  file(WRITE "${FOLDER}/strake.${shell}" "${text}")
endforeach()
