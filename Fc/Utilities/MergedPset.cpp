#include "Fc/Utilities/MergedPset.h"

#include <set>

#include "Fc/Core/Kernel/FcProduct.h"
#include "Fc/Core/Kernel/FcPropertySet.h"
#include "Fc/Core/Kernel/FcTypeProduct.h"
#include "Fc/Core/ProductExtension/FcElementQuantity.h"
#include "Fc/Data.h"
#include "Fc/FcCopySettings.h"
#include "Fc/Resource/Property/FcProperty.h"
#include "Fc/Resource/Quantity/FcPhysicalQuantity.h"

namespace qor::fc::utilities::detail {

using core::kernel::FcObjectDefinition;
using core::kernel::FcPropertySet;
using core::kernel::FcPropertySetDefinition;
using core::productextension::FcElementQuantity;

namespace {

std::shared_ptr<FcPropertySetDefinition> setOf(const FcObjectDefinition* object,
                                               const std::string& name) {
  return object ? object->getPropertySetDefinitionNonConst<FcPropertySetDefinition>(name) : nullptr;
}

// Copies of those members whose name is none of `known`, given to `add`.
template <class Member, class Add>
void copyMissing(const std::vector<std::shared_ptr<Member>>& members,
                 const std::set<std::string>& known, FcCopySettings& settings, Add&& add) {
  for (const std::shared_ptr<Member>& member : members)
    if (member && !known.contains(member->Name()))
      add(std::static_pointer_cast<Member>(member->deepCopy(settings)));
}

template <class Member>
std::set<std::string> namesOf(const std::vector<std::shared_ptr<Member>>& members) {
  std::set<std::string> names;
  for (const std::shared_ptr<Member>& member : members)
    if (member) names.insert(member->Name());
  return names;
}

}  // namespace

std::pair<std::shared_ptr<const FcPropertySetDefinition>, std::shared_ptr<const Data>>
getMergedPset(const std::string& name, const core::kernel::FcProduct* product,
              const core::kernel::FcTypeProduct* type) {
  const auto own = setOf(product, name);
  const auto typed = setOf(type, name);
  if (!own || !typed) {
    const auto& only = own ? own : typed;
    return {only, only ? only->data() : nullptr};
  }
  const auto store = std::make_shared<Data>();
  FcCopySettings settings;
  settings.target = store;
  const auto merged = std::static_pointer_cast<FcPropertySetDefinition>(own->deepCopy(settings));
  if (const auto set = fcCast<FcPropertySet>(merged), of = fcCast<FcPropertySet>(typed); set && of)
    copyMissing(of->HasProperties(), namesOf(set->HasProperties()), settings,
                [&](auto&& property) { set->insertHasProperties(property); });
  if (const auto set = fcCast<FcElementQuantity>(merged), of = fcCast<FcElementQuantity>(typed);
      set && of)
    copyMissing(of->Quantities(), namesOf(set->Quantities()), settings,
                [&](auto&& quantity) { set->insertQuantities(quantity); });
  return {merged, store};
}

}  // namespace qor::fc::utilities::detail
