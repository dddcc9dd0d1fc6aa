#pragma once

#include <memory>
#include <optional>

#include "Fc/Resource/Measure/FcSimpleValueAlternatives.h"
#include "Qor/Unit/QuantityPresentationBase.h"

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
  /// A Real as a plain number; null for any other value.
  std::unique_ptr<unit::QuantityPresentationBase> createQuantityPresentation() const;
};

}  // namespace qor::fc::resource::measure
