#include "Host/Cli/OutputFile.h"

#include <fmt/format.h>

#include <streambuf>
#include <string>
#include <vector>

#include "Host/Cli/LoadModel.h"
#include "Host/Cli/PrintableText.h"
#include "Qor/Platform/ReplacingFile.h"

namespace qor::host::cli {

namespace {

/// Hands large pieces to a file, and keeps the first failure.
class PieceBuffer : public std::streambuf {
 public:
  explicit PieceBuffer(ReplacingFile& file) : m_file(file), m_piece(std::size_t{1} << 20) {
    setp(m_piece.data(), m_piece.data() + m_piece.size());
  }
  const std::string& failure() const { return m_failure; }

 protected:
  int_type overflow(int_type character) override {
    if (sync() != 0) return traits_type::eof();
    if (!traits_type::eq_int_type(character, traits_type::eof()))
      sputc(traits_type::to_char_type(character));
    return traits_type::not_eof(character);
  }
  int sync() override {
    if (m_failure.empty())
      m_failure = m_file.write({pbase(), static_cast<std::size_t>(pptr() - pbase())});
    setp(m_piece.data(), m_piece.data() + m_piece.size());
    return m_failure.empty() ? 0 : -1;
  }

 private:
  ReplacingFile& m_file;
  std::vector<char> m_piece;
  std::string m_failure;
};

std::string writeWhole(const std::filesystem::path& path,
                       const std::function<bool(std::ostream&)>& write) {
  ReplacingFile file;
  if (auto failure = file.open(path); !failure.empty()) return failure;
  PieceBuffer buffer(file);
  std::ostream stream(&buffer);
  const bool isWritten = write(stream) && stream.flush();
  if (!buffer.failure().empty()) return buffer.failure();
  return isWritten ? file.commit() : "its content can't be made";
}

}  // namespace

bool writeFile(const std::filesystem::path& path, Console& console,
               const std::function<bool(std::ostream&)>& write) {
  const std::string failure = writeWhole(path, write);
  if (failure.empty()) return true;
  refuse(console, fmt::format("can't write {}: {}", inQuotes(path.string()), failure));
  return false;
}

}  // namespace qor::host::cli
