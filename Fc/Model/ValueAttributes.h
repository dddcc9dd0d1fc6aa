#pragma once

#include "Qor/Platform/Export.h"

namespace qor::fc {

class FcBase;

/// Gives `target` each value of `source` that isn't a reference, the guid included; what is absent
/// there becomes absent. Attributes that `target` lacks are passed over. `source` must be held by a
/// `std::shared_ptr`.
QOR_API void copyValueAttributes(FcBase& target, const FcBase& source);
/// The same, but what is absent in `source` stays as it is.
QOR_API void mergeValueAttributes(FcBase& target, const FcBase& source);

}  // namespace qor::fc
