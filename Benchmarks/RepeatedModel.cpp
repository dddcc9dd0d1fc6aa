#include "Benchmarks/RepeatedModel.h"

#include <algorithm>
#include <charconv>
#include <cstdint>

#include "Qor/Id/Guid.h"

namespace qor::host::step {

namespace {

bool isDigit(char c) { return c >= '0' && c <= '9'; }

// The number behind a '#'; `at` goes behind it.
std::uint64_t takeNumber(const char*& at, const char* end) {
  std::uint64_t number = 0;
  at = std::from_chars(at, end, number).ptr;
  return number;
}

// Copies the instances, adding `offset` to all numbers outside of strings and giving each
// 22-character text that begins the parameters of an instance, a guid, a new one.
class Copier {
 public:
  Copier(std::string_view data, std::string& out) : m_data(data), m_out(out) {}

  void copy(std::uint64_t offset) {
    const char* const end = m_data.data() + m_data.size();
    for (const char* at = m_data.data(); at != end;) {
      if (*at == '\'') {
        at = copyText(at, end);
      } else if (*at == '#' && at + 1 != end && isDigit(at[1])) {
        const std::uint64_t number = takeNumber(++at, end);
        m_largest = std::max(m_largest, number);
        m_out += '#';
        m_out += std::to_string(number + offset);
      } else {
        m_out += *at++;
      }
    }
  }
  std::uint64_t largest() const { return m_largest; }

 private:
  const char* copyText(const char* open, const char* end) {
    const char* close = open + 1;
    while (close != end && *close != '\'') ++close;
    const bool isGuid = close - open == 23 && m_out.ends_with('(');
    if (isGuid)
      m_out += '\'' + Guid::generate().toString(false);
    else
      m_out.append(open, close);
    m_out += '\'';
    return close == end ? end : close + 1;
  }

  std::string_view m_data;
  std::string& m_out;
  std::uint64_t m_largest = 0;
};

}  // namespace

std::string repeatedModel(std::string_view text, std::size_t size) {
  const std::size_t begin = text.find("DATA;") + 5;
  const std::size_t end = text.rfind("ENDSEC;");
  std::string out(text.substr(0, begin));
  out.reserve(size + size / 4);
  Copier copier(text.substr(begin, end - begin), out);
  for (std::uint64_t offset = 0; out.size() < size; offset += copier.largest()) copier.copy(offset);
  out += text.substr(end);
  return out;
}

}  // namespace qor::host::step
