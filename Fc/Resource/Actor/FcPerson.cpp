#include "Fc/Resource/Actor/FcPerson.h"

namespace qor::fc::resource::actor {

std::string FcPerson::getFullName(bool withMiddleNames) const {
  std::string name = GivenName().value_or("");
  if (withMiddleNames && MiddleNames())
    for (const std::string& middle : *MiddleNames()) name += ' ' + middle;
  if (FamilyName()) name += ' ' + *FamilyName();
  return name;
}

}  // namespace qor::fc::resource::actor
