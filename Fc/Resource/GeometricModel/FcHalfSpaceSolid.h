#pragma once

#include <optional>
#include <vector>

#include "Fc/Model/OpenCascadeTypes.h"
#include "Fc/Resource/GeometricModel/FcHalfSpaceSolidAttributes.h"
#include "Fc/Resource/Measure/FcPositiveLengthMeasure.h"
#include "Qor/Math/Extent.h"
#include "Qor/Math/Matrix.h"

namespace qor::fc::resource::geometricmodel {

/// IfcHalfSpaceSolid, Resource.Geometric Model: all that lies on one side of a plane, that of its
/// normal unless `AgreementFlag` says the other. A tool of boolean operations, which has no picture
/// of its own.
class QOR_API FcHalfSpaceSolid : public FcHalfSpaceSolidAttributes {
 public:
  struct OcRepresentationData {
    math::Point3d point;    ///< on the plane
    math::Vector3d vector;  ///< of length 1, into the material
  };

  /// Has none: it has no end.
  std::optional<math::Extent> boundingBox(const FcParams& params) const override;
  /// An assert, and no change, without `BaseSurface`.
  void transform(const math::Matrix& matrix) override;
  /// What to cut with out of a body whose box has a diagonal of `diameter`.
  std::vector<TopoDS_Shape> ocRepresentationForClipping(
      const measure::FcPositiveLengthMeasure& diameter, const FcParams& params) const;

  /// A missing position is reported and taken to be the identity; empty, with an assert, when the
  /// base surface isn't a plane.
  std::optional<OcRepresentationData> setupOcRepresentationData() const;
  /// The part of the half-space above or below the whole of `box`, as a prism that reaches a little
  /// beyond it: what to cut with out of a body with that box. An endless solid can't be cut with
  /// safely. Null without a plane with a position, and when the box lies on the other side.
  TopoDS_Shape prismOver(const math::Extent& box) const;
  /// No point of the box is further into the material than the length tolerance: there is nothing
  /// to cut. False without a plane with a position.
  bool isAwayFrom(const math::Extent& box) const;

 protected:
  std::optional<math::Matrix> materialFrame() const;
};

}  // namespace qor::fc::resource::geometricmodel
