#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "Qor/Platform/Export.h"
#include "Qor/Unit/QuantityBase.h"
#include "Qor/Unit/QuantityPresentationBase.h"

namespace qor::fc::resource::measure {

/// What the numbers of a measure type measure. The one table of the schema's measures that can be
/// shown with a unit; all other types have no presentation.

/// By the name of the type without its "Ifc": "LengthMeasure". Null for a type that isn't in the
/// table.
QOR_API const unit::QuantityBase* quantityOfMeasure(std::string_view name);

/// The SI number with the default settings of its quantity. An assert, and null, for a type that
/// isn't in the table.
QOR_API std::unique_ptr<unit::QuantityPresentationBase> createMeasurePresentation(
    std::string_view name, double number);

/// A plain number, which is no measure: a Real.
QOR_API std::unique_ptr<unit::QuantityPresentationBase> createNumberPresentation(double number);

/// The presentation with the settings that the host made for a property or quantity of that name in
/// that set, if it made any for what is measured here; else as it was. Null gives null.
QOR_API std::unique_ptr<unit::QuantityPresentationBase> withSettingsOfProperty(
    std::unique_ptr<unit::QuantityPresentationBase> presentation, const std::string& setName,
    const std::string& propertyName);

/// The type is one of the alternatives of `FcMeasureValue` or `FcDerivedMeasureValue`: any
/// measure, with a presentation or without.
QOR_API bool isMeasure(std::string_view ifcName);

}  // namespace qor::fc::resource::measure
