#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "Qor/Platform/Export.h"
#include "Qor/Unit/QuantityPresentationBase.h"

namespace qor::unit {

/// Settings of single properties, which a host sets in front of those of their quantity: a pipe's
/// diameter in millimetres while other lengths are shown in metres.
///
/// A property is named "Pset_PipeSegmentOccurrence.OutsideDiameter": the name of its set, a point,
/// its own name, with case. Process-wide; may be used from any thread.
class QOR_API QuantityPresentationFactory {
 public:
  /// False, and no change, for a unit that isn't valid.
  static bool setForIfcPropertyId(std::string ifcPropertyId, const QuantityBase& quantity,
                                  QppSettings settings);
  static void eraseForIfcPropertyId(std::string_view ifcPropertyId);

  /// A presentation of an SI number with the settings of that property. Null when it has none, and
  /// when it has them for another quantity: metres say nothing about a property that turns out to
  /// be an area in this model.
  static std::unique_ptr<QuantityPresentationBase>
  createNewBaseUniqueFromIfcPropertyIdWithSanityCheck(std::string_view ifcPropertyId,
                                                      const QuantityBase& quantity, double number);
};

}  // namespace qor::unit
