#include "Fc/Resource/Geometry/GeometryAssert.h"

#include <string_view>

#include "Qor/Assert/Assert.h"

namespace qor::fc::resource::geometry {

void reportBroken(const std::string& message, const char* operation, int line) {
  if (!Assert::isEnabled()) return;
  const std::string_view qualified = operation;
  Assert::addAssert({.message = message,
                     .function = "qor::fc::resource::geometry::" + std::string(qualified),
                     .source = std::string(qualified.substr(0, qualified.find(':'))),
                     .line = line});
}

}  // namespace qor::fc::resource::geometry
