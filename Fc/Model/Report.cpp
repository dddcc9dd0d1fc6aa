#include "Fc/Model/Report.h"

#include <utility>

#include "Fc/FcBase.h"

namespace qor::fc {

void report(const FcBase& entity, std::string message, const std::source_location& where) {
  if (!Assert::isEnabled()) return;
  AssertInfo info = assertAt(where);
  info.message = std::move(message);
  info.subject = &entity;
  info.subjectClass = entity.classInfo().name.view();
  Assert::addAssert(info);
}

}  // namespace qor::fc
