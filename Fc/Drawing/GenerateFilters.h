#pragma once

#include <memory>

#include "Qor/Platform/Export.h"

namespace qor::fc {

class FcGenerateParams;

namespace resource::representation {
class FcGeometricRepresentationContext;
class FcRepresentation;
}  // namespace resource::representation

/// A host's choice of representation contexts in a walk.
class QOR_API RepresentationContextInterface {
 public:
  virtual ~RepresentationContextInterface() = default;

  /// False: nothing of this context is drawn.
  virtual bool shouldGenerate(
      const resource::representation::FcGeometricRepresentationContext& context) const = 0;
};

/// A host's choice of representations in a walk.
class QOR_API RepresentationInterface {
 public:
  struct Answer {
    /// False: the representation isn't drawn.
    bool generate = true;
    /// Whatever is to be done when the representation has been drawn or refused: its destruction.
    std::shared_ptr<void> scope{};
  };

  virtual ~RepresentationInterface() = default;

  virtual Answer representation(
      FcGenerateParams& params,
      const resource::representation::FcRepresentation& representation) = 0;
};

}  // namespace qor::fc
