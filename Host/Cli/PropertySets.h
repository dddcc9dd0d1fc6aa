#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <unordered_set>
#include <vector>

#include "Fc/Core/Kernel/FcObjectDefinition.h"
#include "Fc/Core/Kernel/FcPropertySetDefinition.h"
#include "Fc/Data.h"
#include "Fc/Resource/Property/FcExtendedProperties.h"
#include "Host/Cli/AttributeValue.h"

namespace qor::host::cli {

/// A property or quantity of a set, those inside complex ones behind these.
struct PropertyRow {
  std::shared_ptr<const fc::FcBase> property;  ///< as the model lists it
  std::size_t depth;  ///< 0, or how many complex properties it is inside of
  bool fromType;      ///< the object has it from its type
};

/// A set as a user sees it.
struct PropertyTable {
  std::shared_ptr<const fc::FcBase> set;  ///< the object's own, or else that of its type
  std::vector<PropertyRow> rows;
};

/// The sets of an object in the order of their numbers, each merged with the set of the same
/// name of its type, then those that the type alone has. A set without a name, or with one that
/// came before, stands for itself.
std::vector<PropertyTable> propertySetsOf(const fc::core::kernel::FcObjectDefinition& object,
                                          const NumberOf& numberOf);

/// A set by itself. A predefined one has no rows: its attributes are its properties.
PropertyTable tableOf(const std::shared_ptr<const fc::FcBase>& set);

/// A property or quantity by itself, with those inside of it.
std::vector<PropertyRow> rowsOf(const std::shared_ptr<const fc::FcBase>& property);

}  // namespace qor::host::cli
