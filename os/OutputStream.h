// An output file as a stream, for writers that take one.
#pragma once

#include "os/OutputFile.h"

#include <ostream>
#include <streambuf>

namespace strake::os {

class OutputStreamBuffer : public std::streambuf {
 public:
  // The file must outlive the buffer.
  explicit OutputStreamBuffer(OutputFile& file) : fFile(&file) {}

 protected:
  std::streamsize xsputn(const char* bytes, std::streamsize count) override {
    fFile->Write({bytes, static_cast<std::size_t>(count)});
    return count;
  }

  int_type overflow(int_type character) override {
    if (!traits_type::eq_int_type(character, traits_type::eof())) {
      const char byte = traits_type::to_char_type(character);
      fFile->Write({&byte, 1});
    }
    return traits_type::not_eof(character);
  }

 private:
  OutputFile* fFile;
};

}  // namespace strake::os
