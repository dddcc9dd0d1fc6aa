#pragma once

#include <memory>
#include <string>
#include <utility>

#include "Qor/Platform/Export.h"

namespace qor::fc {
class Data;
}
namespace qor::fc::core::kernel {
class FcProduct;
class FcPropertySetDefinition;
class FcTypeProduct;
}  // namespace qor::fc::core::kernel

namespace qor::fc::utilities::detail {

/// The set of that name as a user sees it on an occurrence: its own properties, or quantities, and
/// those of its type that it has none of the same name for.
///
/// Where only one of the two has the set, that set and its model. Where both have it, a copy in a
/// model of its own; keep the model as long as the set is used. Null and null where neither has
/// it. `product` and `type` may be null.
QOR_API std::pair<std::shared_ptr<const core::kernel::FcPropertySetDefinition>,
                  std::shared_ptr<const Data>>
getMergedPset(const std::string& name, const core::kernel::FcProduct* product,
              const core::kernel::FcTypeProduct* type);

}  // namespace qor::fc::utilities::detail
