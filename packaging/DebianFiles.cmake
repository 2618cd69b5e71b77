# What Debian wants in a package beside what is installed; cpack runs it between
# installing into a folder and packing that. Compressed files hold no time.

# put(NAME FILE): debian/NAME becomes FILE, whatever mode it has here.
function(put name file)
  configure_file(${CPACK_STRAKE_DEBIAN_FILES}/${name} ${file} COPYONLY NO_SOURCE_PERMISSIONS)
endfunction()

# compress(FILE...)
function(compress)
  execute_process(COMMAND gzip -9n ${ARGN} COMMAND_ERROR_IS_FATAL ANY)
endfunction()

set(package_of_runtime strake)
set(package_of_dev strake-dev)
foreach(component IN LISTS CPACK_COMPONENTS_ALL)
  set(package ${package_of_${component}})
  set(share ${CPACK_TEMPORARY_INSTALL_DIRECTORY}/${component}${CPACK_PACKAGING_INSTALL_PREFIX}/share)
  set(documents ${share}/doc/${package})
  put(copyright ${documents}/copyright)
  put(changelog ${documents}/changelog.Debian)
  compress(${documents}/changelog.Debian)
  put(${package}.lintian-overrides ${share}/lintian/overrides/${package})
  file(GLOB manuals ${share}/man/man*/*)
  if(manuals)
    compress(${manuals})
  endif()
endforeach()
