#pragma once

#include "Fc/Resource/Topology/FcFaceAttributes.h"
#include "Fc/Shapes/PointIndices.h"
#include "Qor/Draw/PolygonalFaceSetOpenGL.h"

namespace qor::fc::resource::topology {

/// IfcFace, Resource.Topology: a piece of a surface within its bounds, flat where no class below
/// gives it a surface.
class QOR_API FcFace : public FcFaceAttributes {
 public:
  /// As a polygon with holes, whatever surface it has; nothing, with an assert, unless exactly one
  /// of its bounds is an outer one.
  void draw(const FcDrawParams& params) const override;
  void transform(const math::Matrix& matrix) override;
  std::optional<math::Extent> boundingBox(const FcParams& params) const override;

  /// The face over the coordinates of its shell: points that the shell doesn't know yet, by
  /// `indices`, are appended. The outer bound comes first; without one the first bound is the
  /// outer. Empty when a bound has no polygon; points that were appended stay.
  virtual std::optional<generate::draw::PolygonalFaceSetOpenGL::Face> generateIndexedFace(
      std::vector<math::Point3d>& coordinates, PointIndices& indices) const;
};

}  // namespace qor::fc::resource::topology
