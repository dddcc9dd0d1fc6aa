#pragma once

#include <memory>
#include <optional>
#include <string>

#include "Fc/Resource/Measure/FcValue.h"
#include "Fc/Resource/Property/FcPropertyAttributes.h"
#include "Qor/Unit/QuantityPresentationBase.h"

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

  /// `value`, the value of that attribute of this property ("NominalValue"), ready to be printed.
  /// It gets the settings that the host made for the property by the names of its set and its own,
  /// else those of what is measured, and with `unitOverride` the unit of that symbol ("mm"), if it
  /// is one of the quantity's. Null for values that aren't numbers and, with an assert, for a
  /// measure that can't be shown with a unit.
  std::unique_ptr<unit::QuantityPresentationBase> createQuantityPresentationFor(
      const std::string& attribute, const measure::FcValue& value,
      const std::optional<std::string>& unitOverride) const;

 protected:
  FcProperty() = default;
};

}  // namespace qor::fc::resource::property
