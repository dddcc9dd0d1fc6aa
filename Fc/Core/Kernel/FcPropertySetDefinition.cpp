#include "Fc/Core/Kernel/FcPropertySetDefinition.h"

#include <algorithm>

#include "Fc/Core/Kernel/FcRelDefinesByProperties.h"
#include "Fc/Core/Kernel/FcTypeObject.h"
#include "Fc/Data.h"

namespace qor::fc::core::kernel {

namespace {

using Types = FcPropertySetDefinitionSelect::Types;

void detach(const std::shared_ptr<FcRelDefinesByProperties>& relation,
            const std::shared_ptr<FcPropertySetDefinition>& set, Data& data) {
  if (relation->RelatingPropertyDefinition().type() == Types::PropertySetDefinitionSet) {
    FcPropertySetDefinitionSet others =
        relation->RelatingPropertyDefinition().PropertySetDefinitionSet();
    std::erase(others.valueNonConst(), set);
    const bool isLast = others.value().empty();
    relation->setRelatingPropertyDefinition(std::move(others));
    if (isLast) data.entityDelete(relation);
  } else {
    relation->setRelatedObjects({});
    relation->setRelatingPropertyDefinition({});
    data.entityDelete(relation);
  }
}

}  // namespace

void FcPropertySetDefinition::deleteAllProperties(Data&) {}

bool FcPropertySetDefinition::hasPropertyOrQuantity(std::string_view name) const {
  return getPropertyAsFcBase(name) != nullptr;
}

std::shared_ptr<FcBase> FcPropertySetDefinition::getPropertyAsFcBase(std::string_view) const {
  return nullptr;
}

void FcPropertySetDefinition::deletePset(Data& data) {
  const auto self = std::static_pointer_cast<FcPropertySetDefinition>(shared_from_this());
  for (const auto& type : DefinesType().lockAll()) {
    if (!type) break;
    if (type->HasPropertySets()) type->eraseHasPropertySets(self);
  }
  for (const auto& relation : DefinesOccurrence().lock()) detach(relation, self, data);
  deleteAllProperties(data);
}

}  // namespace qor::fc::core::kernel
