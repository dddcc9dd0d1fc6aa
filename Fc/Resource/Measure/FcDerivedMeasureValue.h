#pragma once

#include <memory>
#include <optional>

#include "Fc/Resource/Measure/FcDerivedMeasureValueAlternatives.h"
#include "Qor/Unit/QuantityPresentationBase.h"

namespace qor::fc::resource::measure {

/// IfcDerivedMeasureValue, Resource.Measure. Numbers are SI.
class QOR_API FcDerivedMeasureValue : public FcDerivedMeasureValueAlternatives {
 public:
  using FcDerivedMeasureValueAlternatives::FcDerivedMeasureValueAlternatives;

  /// Empty for CompoundPlaneAngleMeasure and NotSet.
  std::optional<double> valueAsDoubleGet() const { return number(); }
  /// False, and no change, for CompoundPlaneAngleMeasure and NotSet. An IntegerCountRateMeasure
  /// gets what stands before the point.
  bool setDoubleValue(double value) { return setNumber(value); }
  /// The number with the default settings of its quantity. Null, with an assert, for a measure that
  /// can't be shown with a unit, and for NotSet.
  std::unique_ptr<unit::QuantityPresentationBase> createQuantityPresentation() const;
};

}  // namespace qor::fc::resource::measure
