#pragma once

#include <optional>

#include "Fc/Resource/Measure/FcDerivedMeasureValueAlternatives.h"

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
};

}  // namespace qor::fc::resource::measure
