#pragma once

#include "Fc/Resource/GeometricModel/FcPolygonalBoundedHalfSpaceAttributes.h"

namespace qor::fc::resource::geometricmodel {

/// IfcPolygonalBoundedHalfSpace, Resource.Geometric Model: the part of a half-space within a prism
/// without ends, which stands on a polygon in the XY plane of `Position`.
class QOR_API FcPolygonalBoundedHalfSpace : public FcPolygonalBoundedHalfSpaceAttributes {
 public:
  struct OcRepresentationData {
    math::Vector3d extrusion;  ///< of length 1, along the prism into the material
    math::Matrix boundary;     ///< the frame of the polygon
    math::Point3d point;       ///< on the plane
    math::Vector3d vector;     ///< of length 1, into the material
  };

  /// Moves plane and frame; a mirror mirrors the polygon in its frame, which stays right-handed. An
  /// assert, and no change, unless there are a base surface and a polygon.
  void transform(const math::Matrix& matrix) override;
  /// The prism from the plane on, a tenth longer than `diameter`, in metres. Nothing, with an
  /// assert, when that isn't positive, the prism is parallel to the plane, or there is no polygon.
  std::vector<TopoDS_Shape> ocPrismForClipping(const measure::FcPositiveLengthMeasure& diameter,
                                               const FcParams& params) const;
  /// How far along the prism from the plane the farthest point of the box within the material lies,
  /// in metres; 0 without a plane that the prism goes through.
  double depthThrough(const math::Extent& box) const;

 private:
  static constexpr double finalSafetyFactorOnExtrusionDepth() { return 1.1; }

  math::Matrix validPosition() const;
  std::optional<OcRepresentationData> setupOcRepresentationData() const;
  std::vector<math::Point3d> polygonOnPlane(const OcRepresentationData& data,
                                            const FcParams& params) const;
  TopoDS_Shape ocRepresentationFromBooleanCommonOfHalfSpaceWithFinitePrism(
      double depth, const FcParams& params) const;
};

}  // namespace qor::fc::resource::geometricmodel
