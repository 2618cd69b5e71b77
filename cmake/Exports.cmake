# strake_exports(TARGET MAP): the library exports what the map names, nothing
# else. Declarations carry no word about it: the platform's libraries own them.
function(strake_exports target map)
  if(APPLE)
    return()
  endif()
  # Windows' loader finds a library by name: what nobody declares for export is
  # exported as a whole, but for what comes out of archives.
  if(WIN32)
    target_link_options(${target} PRIVATE -Wl,--exclude-libs,ALL)
    return()
  endif()
  target_link_options(${target} PRIVATE "-Wl,--version-script=${CMAKE_CURRENT_SOURCE_DIR}/${map}")
  set_property(TARGET ${target} APPEND PROPERTY LINK_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/${map})
endfunction()
