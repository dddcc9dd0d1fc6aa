#pragma once

#include "Fc/Resource/Profile/FcRectangleHollowProfileDefAttributes.h"

namespace qor::fc::resource::profile {

/// IfcRectangleHollowProfileDef, Resource.Profile: a rectangular tube. The fillet radii round the
/// corners of its outer and inner contour; one within the length tolerance leaves them sharp.
class QOR_API FcRectangleHollowProfileDef : public FcRectangleHollowProfileDefAttributes {
 public:
  /// Dimensions that don't fit each other are reported, and the contours are built from them all
  /// the same.
  std::vector<generate::draw::Profile2D> closedProfile(const FcParams& params) const override;
  /// Two rectangles with sharp corners, the outer and the inner one.
  std::vector<std::shared_ptr<geometry::FcIndexedPolyCurve>> getAsIndexedPolyCurves()
      const override;

 private:
  void assertThatProfileDataIsValid() const;
};

}  // namespace qor::fc::resource::profile
