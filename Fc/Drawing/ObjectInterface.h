#pragma once

#include <memory>

#include "Fc/FcBase.h"
#include "Qor/Object/ObjectInterface.h"

namespace qor::fc {

namespace core::kernel {
class FcRoot;
}

/// What a draw target receives in `startObject`: it tells which entity is being drawn. A host
/// derives its own from this, or has `document::Document` supply one.
class QOR_API ObjectInterface : public generate::ObjectInterface {
 public:
  virtual void objectSet(std::shared_ptr<core::kernel::FcRoot> root) = 0;
  /// Null for none. Throws `std::bad_weak_ptr` for an entity that no `std::shared_ptr` holds.
  virtual void objectSet(const FcBase* entity) = 0;
  /// Null for none. To read a face of the entity, cast it at run time: `GuidInterface`,
  /// `object::PlacementInterface`.
  virtual const FcBase* objectGet() const = 0;
  virtual FcBase* objectGet() = 0;
};

}  // namespace qor::fc
