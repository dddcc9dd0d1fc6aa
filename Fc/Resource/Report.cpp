#include "Fc/Resource/Report.h"

#include <string_view>
#include <utility>

#include "Qor/Assert/Assert.h"

namespace qor::fc::resource {

namespace {

/// "FcFace" of "qor::fc::resource::topology::FcFace::draw".
std::string classIn(std::string_view function) {
  const std::size_t end = function.rfind("::");
  if (end == std::string_view::npos) return std::string(function);
  const std::string_view scope = function.substr(0, end);
  const std::size_t begin = scope.rfind("::");
  return std::string(begin == std::string_view::npos ? scope : scope.substr(begin + 2));
}

}  // namespace

void report(std::string message, const char* function, int line) {
  if (Assert::isEnabled())
    Assert::addAssert({.message = std::move(message),
                       .function = function,
                       .source = classIn(function),
                       .line = line});
}

}  // namespace qor::fc::resource
