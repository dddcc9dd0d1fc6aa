#include "Fc/BaseType.h"

#include "Qor/Assert/Assert.h"

namespace qor::fc {

void reportNoTextForm(const std::string& type, const char* operation) {
  if (!Assert::isEnabled()) return;
  const std::string argument = type.back() == '>' ? type + " " : type;
  Assert::addAssert({.kind = 0,
                     .message = "Not implemented for this type",
                     .function = "qor::fc::BaseType<" + argument + ">::" + operation,
                     .source = "BaseType",
                     .line = __LINE__});
}

std::string spellingOfReference(const char* target) {
  return "class std::shared_ptr<class " + std::string(target) + ">";
}

}  // namespace qor::fc
