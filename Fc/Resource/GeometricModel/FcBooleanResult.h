#pragma once

#include <vector>

#include "Fc/Resource/GeometricModel/FcBooleanResultAttributes.h"
#include "Qor/Math/Extent.h"
#include "Qor/Math/Matrix.h"

namespace qor::fc::resource::geometricmodel {

/// IfcBooleanResult, Resource.Geometric Model: the difference, intersection or union of two
/// operands.
///
/// A half-space is an operand only where it is cut with. Circles are cut into fewer segments than
/// elsewhere, at most 20, since each face of an operand costs.
class QOR_API FcBooleanResult : public FcBooleanResultAttributes {
 public:
  /// What the complex geometry processor makes of it, on this thread. Without a processor an assert
  /// and nothing.
  void draw(const FcDrawParams& params) const override;
  /// Moves both operands.
  void transform(const math::Matrix& matrix) override;
  /// Of a difference, the box of the first operand; else of both boxes what the operation makes of
  /// the operands. The same checks as below.
  std::optional<math::Extent> boundingBox(const FcParams& params) const override;
  /// Those of the first operand, then its own.
  void forEachPresentationStyle(
      const std::function<void(const presentationappearance::FcPresentationStyle&)>& callback)
      const override;
};

}  // namespace qor::fc::resource::geometricmodel
