#include "Host/Cli/PropertySets.h"

#include <algorithm>
#include <unordered_map>
#include <utility>

#include "Fc/Core/Kernel/FcObject.h"
#include "Fc/Core/Kernel/FcProduct.h"
#include "Fc/Core/Kernel/FcPropertySet.h"
#include "Fc/Core/Kernel/FcTypeProduct.h"
#include "Fc/Core/ProductExtension/FcElementQuantity.h"
#include "Fc/Resource/Property/FcComplexProperty.h"
#include "Fc/Resource/Quantity/FcPhysicalComplexQuantity.h"
#include "Fc/Utilities/MergedPset.h"

namespace qor::host::cli {

using namespace fc::core::kernel;
using fc::core::productextension::FcElementQuantity;
using fc::resource::property::FcComplexProperty;
using fc::resource::property::FcExtendedProperties;
using fc::resource::property::FcProperty;
using fc::resource::quantity::FcPhysicalComplexQuantity;
using fc::resource::quantity::FcPhysicalQuantity;

namespace {

using Entity = std::shared_ptr<const fc::FcBase>;
using Entities = std::vector<Entity>;
using Set = std::shared_ptr<const FcPropertySetDefinition>;

template <class T>
Entities listOf(const std::vector<std::shared_ptr<T>>& members) {
  Entities list;
  for (const auto& member : members)
    if (member) list.push_back(member);
  return list;
}

/// The properties or quantities that a set, or a complex one of these, holds itself.
Entities membersOf(const fc::FcBase* holder) {
  if (const auto* set = fc::fcCast<FcPropertySet>(holder)) return listOf(set->HasProperties());
  if (const auto* quantities = fc::fcCast<FcElementQuantity>(holder))
    return listOf(quantities->Quantities());
  if (const auto* extended = fc::fcCast<FcExtendedProperties>(holder))
    return listOf(extended->Properties());
  if (const auto* complex = fc::fcCast<FcComplexProperty>(holder))
    return listOf(complex->HasProperties());
  const auto* quantity = fc::fcCast<FcPhysicalComplexQuantity>(holder);
  return quantity ? listOf(quantity->HasQuantities()) : Entities();
}

/// The properties with all that is inside of them. None is followed twice, so that a ring ends.
void append(std::vector<PropertyRow>& rows, const Entities& properties, bool fromType) {
  std::unordered_set<const fc::FcBase*> followed;
  std::vector<PropertyRow> stack;
  const auto push = [&](const Entities& members, std::size_t depth) {
    for (auto i = members.rbegin(); i != members.rend(); ++i)
      stack.push_back({*i, depth, fromType});
  };
  push(properties, 0);
  while (!stack.empty()) {
    rows.push_back(std::move(stack.back()));
    stack.pop_back();
    const fc::FcBase* property = rows.back().property.get();
    const std::size_t depth = rows.back().depth + 1;
    if (followed.insert(property).second) push(membersOf(property), depth);
  }
}

std::string nameOf(const fc::FcBase& property) {
  if (const auto* one = fc::fcCast<FcProperty>(&property)) return one->Name();
  const auto* quantity = fc::fcCast<FcPhysicalQuantity>(&property);
  return quantity ? quantity->Name() : std::string();
}

/// The merged set holds copies. What is wanted are the members themselves: the object's own, and
/// behind them those of its type that the merged set has too.
PropertyTable merged(const Set& own, const Set& ofType, const FcProduct& product,
                     const FcTypeProduct* type) {
  const auto [set, keptAlive] = fc::utilities::detail::getMergedPset(*own->Name(), &product, type);
  PropertyTable table{own, {}};
  const Entities ownMembers = membersOf(own.get());
  append(table.rows, ownMembers, false);
  std::unordered_set<std::string> names;
  for (const Entity& member : ownMembers) names.insert(nameOf(*member));
  Entities added;
  for (const Entity& member : membersOf(ofType.get())) {
    const std::string name = nameOf(*member);
    if (!names.contains(name) && set->hasPropertyOrQuantity(name)) added.push_back(member);
  }
  append(table.rows, added, true);
  return table;
}

/// In the order of their numbers: relationships stand in none.
std::vector<Set> setsOf(const FcObjectDefinition* object, const NumberOf& numberOf) {
  if (!object) return {};
  std::vector<Set> sets = object->getPropertySetDefinitions<FcPropertySetDefinition>();
  std::stable_sort(sets.begin(), sets.end(),
                   [&](const Set& a, const Set& b) { return numberOf(*a) < numberOf(*b); });
  return sets;
}

}  // namespace

std::vector<PropertyRow> rowsOf(const Entity& property) {
  std::vector<PropertyRow> rows;
  append(rows, {property}, false);
  return rows;
}

PropertyTable tableOf(const Entity& set) {
  PropertyTable table{set, {}};
  append(table.rows, membersOf(set.get()), false);
  return table;
}

std::vector<PropertyTable> propertySetsOf(const FcObjectDefinition& object,
                                          const NumberOf& numberOf) {
  const auto* product = fc::fcCast<FcProduct>(&object);
  const auto typeObject = product ? product->getTypeObject() : nullptr;
  const auto* type = fc::fcCast<FcTypeProduct>(typeObject.get());

  std::unordered_map<std::string, Set> ofType;  // the first of each name
  for (const Set& set : setsOf(type, numberOf))
    if (set->Name()) ofType.try_emplace(*set->Name(), set);

  std::vector<PropertyTable> tables;
  std::unordered_set<std::string> names;
  for (const Set& set : setsOf(&object, numberOf)) {
    const bool isFirst = set->Name() && names.insert(*set->Name()).second;
    const auto same = isFirst ? ofType.find(*set->Name()) : ofType.end();
    tables.push_back(same == ofType.end() ? tableOf(set)
                                          : merged(set, same->second, *product, type));
  }
  for (const Set& set : setsOf(type, numberOf)) {
    const bool isMerged =
        set->Name() && names.contains(*set->Name()) && ofType.at(*set->Name()) == set;
    if (isMerged) continue;
    tables.push_back(tableOf(set));
    for (PropertyRow& row : tables.back().rows) row.fromType = true;
  }
  return tables;
}

}  // namespace qor::host::cli
