#pragma once

#include "Fc/Core/ProductExtension/FcElementAttributes.h"

namespace qor::fc::core::productextension {

/// IfcElement, Core.Product Extension: what a building is made of.
class QOR_API FcElement : public FcElementAttributes {
 protected:
  FcElement() = default;
  /// Draws its connection lines, and itself and its parts cut by its openings.
  void doGenerate(FcGenerateParams& params) const override;

 private:
  void drawConnectionLines(FcGenerateParams& params) const;
  void drawConnectionLine(
      FcGenerateParams& params,
      const std::shared_ptr<FcRelConnectsWithRealizingElements>& relation) const;
};

}  // namespace qor::fc::core::productextension
