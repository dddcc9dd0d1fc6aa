#pragma once

#include <memory>

#include "Fc/Resource/Geometry/FcRepresentationItem.h"

namespace qor::fc::resource::geometry {

/// The representation item that a select holds; null for none.
template <class Select>
std::shared_ptr<FcRepresentationItem> selectedItem(const Select& select) {
  auto* const item = fcCast<FcRepresentationItem>(select.getEntity());
  return item ? std::static_pointer_cast<FcRepresentationItem>(item->shared_from_this()) : nullptr;
}

}  // namespace qor::fc::resource::geometry
