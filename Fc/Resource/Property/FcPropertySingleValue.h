#pragma once

#include "Fc/Resource/Property/FcPropertySingleValueAttributes.h"
#include "Qor/Object/PropertyValue.h"

namespace qor::fc::resource::property {

/// IfcPropertySingleValue, Resource.Property: a property with one value, which has its type with
/// it.
class QOR_API FcPropertySingleValue : public FcPropertySingleValueAttributes {
 public:
  /// Writes into the nominal value, which keeps its type: a number into a measure, anything else by
  /// way of its text. False, and no change, for an empty value, and with an assert for a text that
  /// the type can't take. A number for a measure that isn't numeric is accepted and has no effect.
  bool setFromPropertyValue(const object::PropertyValue& value);
};

}  // namespace qor::fc::resource::property
