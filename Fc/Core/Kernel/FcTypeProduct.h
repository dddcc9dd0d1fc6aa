#pragma once

#include "Fc/Core/Kernel/FcTypeProductAttributes.h"

namespace qor::fc::resource::representation {
class FcRepresentationContext;
}

namespace qor::fc::core::kernel {

/// IfcTypeProduct, Core.Kernel: a type whose occurrences have a place and a shape.
class QOR_API FcTypeProduct : public FcTypeProductAttributes {
 public:
  /// The name of the class of its occurrences: "IfcWall" of an IfcWallType.
  std::string classNameWithoutType() const;
  /// A shape is drawn in a context of two dimensions of its own.
  bool has2dGeometricContext() const;
  /// A shape is drawn in a context of three dimensions, or below one.
  bool has3dGeometricContext() const;
  /// The first context of its shapes that the predicate holds for; null for none.
  std::shared_ptr<const resource::representation::FcRepresentationContext>
  getRepresentationContexts(
      const std::function<bool(const resource::representation::FcRepresentationContext&)>&
          predicate) const;

 protected:
  /// Draws the type itself, its maps and ports, when it is the one that the walk is for.
  void doGenerate(FcGenerateParams& params) const override;

 private:
  void drawAsObject(FcGenerateParams& params) const;
  /// Each as an object of its own.
  void drawPorts(FcGenerateParams& params) const;
};

}  // namespace qor::fc::core::kernel
