#pragma once

#include <optional>
#include <span>
#include <string_view>

#include "Qor/Platform/Export.h"
#include "Qor/Unit/Dimensions.h"
#include "Qor/Unit/QuantityBase.h"

namespace qor::fc::resource::measure {

/// What the numbers of a type of the schema measure.
struct QOR_API MeasureRow {
  std::string_view type;  ///< without its "Ifc": "LengthMeasure"
  std::string_view unit;  ///< the kind of unit that an assignment lists for it, "LENGTHUNIT"; or ""
  /// Where it isn't that of the quantity.
  std::optional<unit::Dimensions> ownDimensions;
  /// How it is shown with a unit; null for a type that isn't.
  unit::QuantityBase& (*quantity)();

  /// Empty where the schema leaves them open.
  std::optional<unit::Dimensions> dimensions() const;
};

/// All types whose numbers have a unit or can be shown with one, by their names.
QOR_API std::span<const MeasureRow> measureTable();

/// By its name, as in the table; null for another type. Some seven comparisons of names.
QOR_API const MeasureRow* findMeasure(std::string_view type);

}  // namespace qor::fc::resource::measure
