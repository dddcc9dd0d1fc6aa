#pragma once

#include <optional>

#include "Fc/Resource/Measure/FcValueAlternatives.h"
#include "Qor/Object/PropertyValue.h"

namespace qor::fc::resource::measure {

/// IfcValue, Resource.Measure: what a property holds. Numbers are SI.
class QOR_API FcValue : public FcValueAlternatives {
 public:
  using FcValueAlternatives::FcValueAlternatives;

  /// The number of a measure, counts included, or of a Real; empty for any other value.
  std::optional<double> valueAsDoubleGet() const;
  /// Stores into a numeric measure or a Real, into a count what stands before the point. False, and
  /// no change, for any other value.
  bool setDoubleValue(double value);

  /// A number as Double, a Boolean as Bool, anything else as its text; empty when there is none.
  object::PropertyValue getAsPropertyValue() const;
  /// Takes a Double into a number, a Bool into a Boolean, and a Text by the type of the value,
  /// which stays as it is. An assert, and no change, when there is no value yet or the kinds don't
  /// fit.
  void updateValueFromPropertyValue(const object::PropertyValue& value);

 private:
  bool isBoolean() const;
};

}  // namespace qor::fc::resource::measure
