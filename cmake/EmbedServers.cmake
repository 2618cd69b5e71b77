# Writes C++ that holds server descriptions, byte for byte.
#   cmake -DOUTPUT=FILE.cpp -DSERVERS=FILE,FILE -P EmbedServers.cmake
# A server's name is its file's name without ".server.json".

include(${CMAKE_CURRENT_LIST_DIR}/EmbedBytes.cmake)

string(REPLACE "," ";" servers "${SERVERS}")
set(arrays "")
set(rows "")
set(number 0)
foreach(file IN LISTS servers)
  get_filename_component(name "${file}" NAME)
  string(REGEX REPLACE "\\.server\\.json$" "" name "${name}")
  strake_embed_bytes(bytes "${file}")
  string(APPEND arrays "constexpr char kText${number}[] = {\n${bytes}};\n")
  string(APPEND rows "    {\"${name}\", {kText${number}, sizeof(kText${number}) - 1}},\n")
  math(EXPR number "${number} + 1")
endforeach()

file(WRITE "${OUTPUT}" "// Generated from servers/*.server.json; do not edit.
#include \"app/BuiltInServers.h\"

#include <array>

namespace strake::app {
namespace {

${arrays}
constexpr std::array<BuiltInServer, ${number}> kServers{{
${rows}}};

}  // namespace

std::span<const BuiltInServer> BuiltInServers() { return kServers; }

}  // namespace strake::app
")
