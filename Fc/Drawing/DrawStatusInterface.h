#pragma once

#include <optional>

#include "Qor/Platform/Export.h"

namespace qor::fc {

class FcBase;

namespace resource::representation {
class FcRepresentation;
}

/// What a walk asks about what a person wants to see.
class QOR_API DrawStatusInterface {
 public:
  enum class ObjectRepresentationState { Transparent = 0, Wireframe = 1 };

  virtual ~DrawStatusInterface() = default;

  /// False for what is switched off: the object, its class or its type.
  virtual bool shouldDraw(const FcBase& object) const = 0;
  /// False for a representation of a context that is switched off.
  virtual bool shouldDraw(
      const resource::representation::FcRepresentation& representation) const = 0;
  /// How an object is shown; nothing when it is shown as usual.
  virtual std::optional<ObjectRepresentationState> getRepresentationState(
      const FcBase& object) const = 0;
};

}  // namespace qor::fc
