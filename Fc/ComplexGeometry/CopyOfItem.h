#pragma once

#include <memory>

#include "Fc/Resource/Geometry/FcRepresentationItem.h"

namespace qor::fc {

/// The item with all that it refers to, in no model: what another thread may work on while the
/// model changes.
inline std::shared_ptr<const resource::geometry::FcRepresentationItem> copyOfItem(
    const resource::geometry::FcRepresentationItem& item) {
  return std::static_pointer_cast<const resource::geometry::FcRepresentationItem>(item.deepCopy());
}

}  // namespace qor::fc
