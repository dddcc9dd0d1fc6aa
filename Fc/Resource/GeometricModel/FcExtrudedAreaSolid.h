#pragma once

#include "Fc/Resource/GeometricModel/FcExtrudedAreaSolidAttributes.h"
#include "Qor/Draw/PolygonalFaceSetOpenGL.h"
#include "Qor/Draw/Profile2D.h"

namespace qor::fc::resource::geometricmodel {

class FcBlock;
class FcRightCircularCylinder;

/// IfcExtrudedAreaSolid, Resource.Geometric Model: a profile pushed along a direction by `Depth`
/// metres.
class QOR_API FcExtrudedAreaSolid : public FcExtrudedAreaSolidAttributes {
 public:
  /// A disk or a rectangle pushed along Z is drawn as the cylinder or block that it is, anything
  /// else as one face set for each area of the profile.
  void draw(const FcDrawParams& params) const override;
  /// Scales go into depth, direction and profile, the rest into a new `Position`. An assert, and no
  /// change, without a positive depth; an assert for axes that aren't at right angles.
  void transform(const math::Matrix& matrix) override;
  /// Around the profile's box at both ends.
  std::optional<math::Extent> boundingBox(const FcParams& params) const override;

  /// The body between the profile and where `extrusion` takes it, in the profile's frame. The
  /// profile has a counter-clockwise outer contour and clockwise holes; a downward extrusion turns
  /// them round in place.
  static generate::draw::PolygonalFaceSetOpenGL faceSetFromExtruded(
      generate::draw::Profile2D& profile, const math::Vector3d& extrusion);

  /// Of length 1. Asserts without a direction, which gives zero, and for one in the XY plane.
  math::Vector3d normalizedExtrudedDirection() const;
  /// The body as a new primitive in no model, in the frame around this solid; null when it isn't
  /// one: a disk, or a rectangle, of exactly that class, pushed along Z either way. To be asked
  /// when profile, direction and a positive depth are there.
  std::shared_ptr<FcRightCircularCylinder> asEquivalentRightCircularCylinder() const;
  std::shared_ptr<FcBlock> asFcBlock() const;

 protected:
  /// Reports the first attribute that is missing or bad.
  bool hasDepth(const char* message) const;
  bool hasSweptArea() const;
  bool hasDirection() const;
  /// The box around `planarBox` and where the extrusion takes it, in the frame around this solid.
  math::Extent boxOfExtruded(const math::Extent2d& planarBox) const;

 private:
  bool isReadyToDraw() const;
  bool runsAlongZ() const;
};

}  // namespace qor::fc::resource::geometricmodel
