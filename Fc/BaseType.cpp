#include "Fc/BaseType.h"

#include "Qor/Assert/Report.h"

namespace qor::fc {

void reportNoTextForm(const std::string& type, const char* operation) {
  const std::string argument = type.back() == '>' ? type + " " : type;
  report({.message = "Not implemented for this type",
          .function = "qor::fc::BaseType<" + argument + ">::" + operation});
}

std::string spellingOfReference(const char* target) {
  return "class std::shared_ptr<class " + std::string(target) + ">";
}

}  // namespace qor::fc
