#include "Fc/NotImplemented.h"

#include <string_view>

#include "Fc/FcBase.h"
#include "Qor/Assert/Assert.h"

namespace qor::fc {

std::string runTimeTypeName(const FcBase& entity) {
  std::string name = "class qor::fc::";
  for (const char letter : std::string_view(entity.classInfo().groupPath)) {
    if (letter == '.')
      name += "::";
    else if (letter >= 'A' && letter <= 'Z')
      name += static_cast<char>(letter - 'A' + 'a');
    else if (letter != ' ')
      name += letter;
  }
  return name.append("::Fc").append(std::string_view(entity.ifcName()).substr(3));
}

void assertNotImplemented(const char* message, const FcBase& entity, const char* function) {
  if (!Assert::isEnabled()) return;
  const std::string_view qualified = function;
  Assert::addAssert({.message = message + runTimeTypeName(entity),
                     .function = "qor::fc::" + std::string(qualified),
                     .source = std::string(qualified.substr(0, qualified.find(':'))),
                     .line = 0});
}

}  // namespace qor::fc
