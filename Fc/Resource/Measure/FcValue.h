#pragma once

#include <memory>
#include <optional>

#include "Fc/Resource/Measure/FcValueAlternatives.h"
#include "Qor/Object/PropertyValue.h"
#include "Qor/Unit/QuantityPresentationBase.h"

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

  /// Any measure, and a Real: what can be asked for a presentation. It may turn out to have none,
  /// since some measures can't be shown with a unit.
  bool hasQuantityPresentation() const;
  /// The number with the default settings of its quantity, ready to be printed: "2.500 m²". Null
  /// for values that aren't numbers, and, with an assert, for a measure that can't be shown with a
  /// unit.
  std::unique_ptr<unit::QuantityPresentationBase> createQuantityPresentation() const;

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
