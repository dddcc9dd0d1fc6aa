#pragma once

#include <cstdio>
#include <streambuf>

namespace qor::host::cli {

/// A stream buffer over an open C file that remembers why writing failed, which `std::cout` doesn't
/// tell.
class OutputBuffer : public std::streambuf {
 public:
  /// `file` must outlive this and is not closed.
  explicit OutputBuffer(std::FILE* file) : m_file(file) {}

  /// `errno` of the first write that failed; 0 while all is well.
  int error() const { return m_error; }

 protected:
  int_type overflow(int_type character) override;
  std::streamsize xsputn(const char* text, std::streamsize length) override;
  int sync() override;

 private:
  void fail();

  std::FILE* m_file;
  int m_error = 0;
};

}  // namespace qor::host::cli
