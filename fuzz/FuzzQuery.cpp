#include "fuzz/Harnesses.h"
#include "fuzz/RunServer.h"
#include "fuzz/ServerBytes.h"

int strake::fuzz::FuzzQuery(const std::uint8_t* data, std::size_t size) {
  RunServer(DecodeServer({data, size}));
  return 0;
}
