#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

#include "Fc/Reflection/ClassInfo.h"
#include "Host/StepFile/Units/Dimensions.h"

namespace qor::host::step {

/// One kind of number with a unit.
struct Measure {
  std::string_view type;  ///< of the schema, "LengthMeasure"; empty for kinds of this host alone
  std::string_view unit;  ///< the kind of unit that an assignment lists for it, "LENGTHUNIT"
  /// Empty where the schema leaves them open.
  std::optional<Dimensions> dimensions;
};

/// The position of a measure in `measures()`, or one of the values below.
using MeasureId = std::uint8_t;

namespace measure {
/// No unit, or one that isn't looked at when the number is read.
constexpr MeasureId none = 0;
/// A length, as in IfcLengthMeasure.
constexpr MeasureId length = 1;
constexpr MeasureId planeAngle = 2;
constexpr MeasureId temperature = 3;
/// A difference of two temperatures: no offset.
constexpr MeasureId temperatureDifference = 4;
/// One through a length, or through its square.
constexpr MeasureId inverseLength = 5;
constexpr MeasureId inverseSquareLength = 6;
/// Each value of a select tells its own type.
constexpr MeasureId byType = 255;
}  // namespace measure

/// All measures of the schema that have a unit, behind the kinds above; the first, `measure::none`,
/// has none.
std::span<const Measure> measures();

/// By the name of a type in upper case, "IFCLENGTHMEASURE"; `none` for one without a unit. Some
/// seven comparisons of names.
MeasureId measureOfType(std::string_view upperName);

/// What the numbers of an attribute measure, by its declared type and, where that says REAL only,
/// by what the schema's prose says. `none` too for those that have a unit of their own; `UnitRole`
/// tells of these.
MeasureId measureOfAttribute(const fc::ClassInfo& info, const fc::AttributeInfo& attribute);

}  // namespace qor::host::step
