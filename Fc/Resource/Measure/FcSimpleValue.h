#pragma once

#include <optional>

#include "Fc/Resource/Measure/FcSimpleValueAlternatives.h"

namespace qor::fc::resource::measure {

/// IfcSimpleValue, Resource.Measure.
class QOR_API FcSimpleValue : public FcSimpleValueAlternatives {
 public:
  using FcSimpleValueAlternatives::FcSimpleValueAlternatives;

  /// Empty for all alternatives but Real.
  std::optional<double> valueAsDoubleGet() const {
    return type() == Types::Real ? number() : std::nullopt;
  }
  /// False, and no change, for all alternatives but Real.
  bool setDoubleValue(double value) { return type() == Types::Real && setNumber(value); }
};

}  // namespace qor::fc::resource::measure
