#include "Qor/Assert/Report.h"

#include <string_view>
#include <utility>

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

// "FcFace" of "qor::fc::resource::topology::FcFace::draw".
std::string classIn(std::string_view function) {
  const std::size_t end = function.rfind("::");
  if (end == std::string_view::npos) return std::string(function);
  const std::string_view scope = function.substr(0, end);
  const std::size_t begin = scope.rfind("::");
  return std::string(begin == std::string_view::npos ? scope : scope.substr(begin + 2));
}

void add(std::uint32_t kind, std::string message, const std::source_location& where) {
  AssertInfo info = assertAt(where);
  info.kind = kind;
  info.message = std::move(message);
  Assert::addAssert(info);
}

}  // namespace

AssertInfo assertAt(const std::source_location& where) {
  AssertInfo info;
  info.function = qualifiedName(where.function_name());
  info.source = classIn(info.function);
  info.line = static_cast<int>(where.line());
  return info;
}

void report(std::string message, const std::source_location& where) {
  if (Assert::isEnabled()) add(AssertInfo::plainReport, std::move(message), where);
}

void reportUnimplementedCase(std::string message, const std::source_location& where) {
  if (Assert::isEnabled()) add(AssertInfo::unimplementedCase, std::move(message), where);
}

}  // namespace qor
