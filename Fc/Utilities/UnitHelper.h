#pragma once

#include <memory>
#include <optional>
#include <string>

#include "Fc/Resource/Measure/FcDerivedMeasureValue.h"
#include "Fc/Resource/Measure/FcMeasureValue.h"
#include "Qor/Unit/QuantityPresentationBase.h"

namespace qor::fc::helper {

/// An SI number of that measure type with the default settings of its quantity. An assert, and
/// null, for a type that can't be shown with a unit.
QOR_API std::unique_ptr<unit::QuantityPresentationBase> createQuantityPresentationFromValue(
    double value, resource::measure::FcMeasureValue::Types type);
QOR_API std::unique_ptr<unit::QuantityPresentationBase> createQuantityPresentationFromValue(
    double value, resource::measure::FcDerivedMeasureValue::Types type);

/// "2.500 m" for 2.5 and "LengthMeasure": the SI number as people read it. Empty for an unknown
/// type and for a simple one ("Real") and, with an assert, for a measure that can't be shown with a
/// unit.
QOR_API std::optional<std::string> appendUnit(double value, const std::string& typeName);

}  // namespace qor::fc::helper
