#pragma once

#include <optional>
#include <string>

#include "Fc/Resource/Property/FcPropertyAttributes.h"

namespace qor::fc {
class Data;
}

namespace qor::fc::resource::property {

/// IfcProperty, Resource.Property: something that has a name and tells about an object, as a rule
/// in a property set.
class QOR_API FcProperty : public FcPropertyAttributes {
 public:
  /// Takes the property out of all sets and complex properties that hold it, and off the list of
  /// `data`. With `deleteEmptySets` a set that it was the last property of is detached from
  /// everything; see `FcPropertySetDefinition::deletePset`.
  void deleteProperty(Data& data, bool deleteEmptySets);
  /// The name of the set that holds the property, of one of them where several do; empty for none.
  std::optional<std::string> getPropertySetName() const;

 protected:
  FcProperty() = default;
};

}  // namespace qor::fc::resource::property
