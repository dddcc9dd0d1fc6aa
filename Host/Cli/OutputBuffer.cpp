#include "Host/Cli/OutputBuffer.h"

#include <cerrno>

namespace qor::host::cli {

OutputBuffer::int_type OutputBuffer::overflow(int_type character) {
  if (traits_type::eq_int_type(character, traits_type::eof())) return 0;
  const char c = traits_type::to_char_type(character);
  return xsputn(&c, 1) == 1 ? character : traits_type::eof();
}

std::streamsize OutputBuffer::xsputn(const char* text, std::streamsize length) {
  const auto written = std::fwrite(text, 1, static_cast<std::size_t>(length), m_file);
  if (written != static_cast<std::size_t>(length)) fail();
  return static_cast<std::streamsize>(written);
}

int OutputBuffer::sync() {
  if (std::fflush(m_file) == 0) return 0;
  fail();
  return -1;
}

void OutputBuffer::fail() {
  if (m_error == 0) m_error = errno;
}

}  // namespace qor::host::cli
