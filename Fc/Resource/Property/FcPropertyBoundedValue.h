#pragma once

#include <optional>
#include <string>

#include "Fc/Resource/Property/FcPropertyBoundedValueAttributes.h"

namespace qor::fc::resource::property {

/// IfcPropertyBoundedValue, Resource.Property: a range, with a value to be aimed at where there is
/// one.
class QOR_API FcPropertyBoundedValue : public FcPropertyBoundedValueAttributes {
 public:
  /// "0.000 – 10.000 m (5.000 m)"; the lower bound without its unit unless it is negative. Without
  /// a range the value to be aimed at, without that the one bound behind the localized
  /// "BoundedValue_Min" or "BoundedValue_Max"; empty when nothing is set. `unitOverride` as in
  /// `createQuantityPresentationFor`. A number that has no unit, and a text, stand as they are.
  std::string getAsOneLineString(const std::optional<std::string>& unitOverride) const;
};

}  // namespace qor::fc::resource::property
