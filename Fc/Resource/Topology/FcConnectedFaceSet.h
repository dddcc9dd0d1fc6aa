#pragma once

#include "Fc/Resource/Topology/FcConnectedFaceSetAttributes.h"
#include "Fc/Shapes/PointIndices.h"
#include "Qor/Draw/PolygonalFaceSetOpenGL.h"

namespace qor::fc::resource::topology {

/// IfcConnectedFaceSet, Resource.Topology: faces that hang together, such as a shell.
class QOR_API FcConnectedFaceSet : public FcConnectedFaceSetAttributes {
 public:
  /// A single plain face as it draws itself; faces whose bounds are all polygons as one set;
  /// anything else through the current processor of complex geometry.
  void draw(const FcDrawParams& params) const override;
  /// Each point once, however many faces share it.
  void transform(const math::Matrix& matrix) override;
  /// Around all faces that have a box; empty when none has.
  std::optional<math::Extent> boundingBox(const FcParams& params) const override;

  /// All faces over one list of coordinates, a point object that several share once. Empty when a
  /// bound of some face is no polygon. Linear in the corners.
  virtual std::optional<generate::draw::PolygonalFaceSetOpenGL> generatePolygonalFaceSet() const;
  /// Appends the faces to a set whose points `indices` knows; false, with the set in pieces, when a
  /// bound of some face is no polygon.
  bool appendTo(generate::draw::PolygonalFaceSetOpenGL& faceSet, PointIndices& indices) const;
};

}  // namespace qor::fc::resource::topology
