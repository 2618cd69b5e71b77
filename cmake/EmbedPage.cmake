# Writes C++ that holds the style and the script of the report's page, with the
# hashes by which the page permits them.
#   cmake -DOUTPUT=FILE.cpp -DSTYLE=FILE.css -DSCRIPT=FILE.js -P EmbedPage.cmake

include(${CMAKE_CURRENT_LIST_DIR}/EmbedBytes.cmake)

set(alphabet "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/")

# base64(VARIABLE HEX): of a hash of 32 bytes, which end two bytes into a group.
function(base64 variable hex)
  set(text "")
  foreach(offset RANGE 0 60 6)
    string(SUBSTRING "${hex}00" ${offset} 6 group)
    foreach(shift 18 12 6 0)
      math(EXPR index "(0x${group} >> ${shift}) & 63")
      string(SUBSTRING "${alphabet}" ${index} 1 character)
      string(APPEND text "${character}")
    endforeach()
  endforeach()
  string(REGEX REPLACE "A$" "=" text "${text}")
  set(${variable} "${text}" PARENT_SCOPE)
endfunction()

# asset(NAME FILE): arrays and the operation that gives them.
function(asset name file)
  file(READ "${file}" text)
  # A browser reads "</" as the end of the element, and a carriage return as none.
  if(text MATCHES "</|<!--|\r")
    message(FATAL_ERROR "${file}: '${CMAKE_MATCH_0}' cannot stand within a page")
  endif()
  file(SHA256 "${file}" hex)
  base64(hash "${hex}")
  strake_embed_bytes(bytes "${file}")
  set(code "PageAsset Page${name}() {
  static constexpr char kText[] = {\n${bytes}};
  return {{kText, sizeof(kText) - 1}, \"sha256-${hash}\"};
}
" PARENT_SCOPE)
endfunction()

asset(Style "${STYLE}")
set(style "${code}")
asset(Script "${SCRIPT}")
file(WRITE "${OUTPUT}" "// Generated from report/page; do not edit.
#include \"report/PageAssets.h\"

namespace strake::report {

${style}
${code}
}  // namespace strake::report
")
