#include "Qor/Assert/Report.h"

#include <string_view>

namespace qor {
namespace {

constexpr std::string_view kUnnamed[] = {"(anonymous namespace)::", "{anonymous}::"};

// What compilers call a namespace without a name.
std::string withoutUnnamed(std::string text) {
  for (const std::string_view unnamed : kUnnamed)
    for (std::size_t at; (at = text.find(unnamed)) != std::string::npos;)
      text.erase(at, unnamed.size());
  return text;
}

// Of "void a::f<b::c>(int) const" the part "a::f": between what is returned and the parameters.
std::string qualifiedName(const char* signature) {
  const std::string text = withoutUnnamed(signature);
  int depth = 0;
  std::size_t begin = 0, end = 0;
  for (; end < text.size() && !(text[end] == '(' && depth == 0); ++end) {
    if (text[end] == '<') ++depth;
    if (text[end] == '>') --depth;
    if (text[end] == ' ' && depth == 0) begin = end + 1;
  }
  while (begin < end && (text[begin] == '*' || text[begin] == '&')) ++begin;
  return text.substr(begin,
                     text.find('<', begin) < end ? text.find('<', begin) - begin : end - begin);
}

// "FcFace" of "Fc/Resource/Topology/FcFace.cpp".
std::string sourceName(std::string_view file) {
  file.remove_prefix(file.find_last_of("/\\") + 1);  // npos + 1 is 0
  return std::string(file.substr(0, file.find('.')));
}

}  // namespace

void report(AssertInfo record, const std::source_location& where) {
  if (!Assert::isEnabled()) return;
  if (record.function.empty()) record.function = qualifiedName(where.function_name());
  if (record.source.empty()) record.source = sourceName(where.file_name());
  record.line = static_cast<int>(where.line());
  Assert::addAssert(record);
}

}  // namespace qor
