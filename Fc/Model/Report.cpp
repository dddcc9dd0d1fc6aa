#include "Fc/Model/Report.h"

#include <utility>

#include "Fc/FcBase.h"

namespace qor::fc {

void report(const FcBase& entity, std::string message, const std::source_location& where) {
  if (!Assert::isEnabled()) return;
  report({.message = std::move(message),
          .subject = &entity,
          .subjectClass = std::string(entity.classInfo().name.view())},
         where);
}

}  // namespace qor::fc
