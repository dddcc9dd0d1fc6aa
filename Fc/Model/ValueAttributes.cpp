#include "Fc/Model/ValueAttributes.h"

#include <algorithm>

#include "Fc/FcBase.h"
#include "Fc/Property.h"

namespace qor::fc {

namespace {

bool holdsEntity(const LocalValue& value) {
  if (const auto* list = std::get_if<LocalValue::List>(&value.value))
    return std::any_of(list->begin(), list->end(), holdsEntity);
  return std::holds_alternative<std::shared_ptr<FcBase>>(value.value);
}

void transfer(FcBase& target, const FcBase& source, bool withAbsent) {
  for (const auto& property : source.getLocalProperties()) {
    LocalValue value = source.getLocalValue(property->id());
    if (holdsEntity(value) || (value.isEmpty() && !withAbsent)) continue;
    target.setLocalValue(std::move(value), property->id());
  }
}

}  // namespace

void copyValueAttributes(FcBase& target, const FcBase& source) { transfer(target, source, true); }

void mergeValueAttributes(FcBase& target, const FcBase& source) { transfer(target, source, false); }

}  // namespace qor::fc
