#include "Fc/Model/NotImplemented.h"

#include <string_view>

#include "Fc/FcBase.h"
#include "Fc/Model/Report.h"

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

void assertNotImplemented(const char* message, const FcBase& entity,
                          const std::source_location& where) {
  report(entity, message + runTimeTypeName(entity), where);
}

}  // namespace qor::fc
