#pragma once

#include <memory>
#include <optional>

#include "Fc/Resource/Measure/FcMeasureValueAlternatives.h"
#include "Qor/Unit/QuantityPresentationBase.h"

namespace qor::fc::resource::measure {

/// IfcMeasureValue, Resource.Measure. Numbers are SI.
class QOR_API FcMeasureValue : public FcMeasureValueAlternatives {
 public:
  using FcMeasureValueAlternatives::FcMeasureValueAlternatives;

  /// The number of a numeric alternative, that of a CountMeasure only with `integerCounts`; empty
  /// for ComplexNumber, DescriptiveMeasure and NotSet.
  std::optional<double> valueAsDoubleGet(bool integerCounts) const;
  /// Stores into a numeric alternative; a CountMeasure gets what stands before the point. False,
  /// and no change, for any other.
  bool setDoubleValue(double value) { return setNumber(value); }
  /// The number with the default settings of its quantity. Null, with an assert, for a measure that
  /// can't be shown with a unit, and for NotSet.
  std::unique_ptr<unit::QuantityPresentationBase> createQuantityPresentation() const;
};

}  // namespace qor::fc::resource::measure
