# strake_embed_bytes(VARIABLE FILE): VARIABLE becomes the elements of a C++ array
# of char that holds the file, byte for byte. The last zero byte is no part of it:
# an array cannot be empty.
function(strake_embed_bytes variable file)
  file(READ "${file}" bytes HEX)
  # Rows of 20 bytes keep the generated file readable for tools.
  string(REGEX REPLACE "(........................................)" "\\1\n" bytes "${bytes}")
  string(REGEX REPLACE "([0-9a-f][0-9a-f])" "'\\\\x\\1'," bytes "${bytes}")
  set(${variable} "${bytes}'\\0'" PARENT_SCOPE)
endfunction()
