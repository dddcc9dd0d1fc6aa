#pragma once

#include <optional>

#include "Fc/Resource/Measure/FcMeasureValueAlternatives.h"

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
};

}  // namespace qor::fc::resource::measure
