#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "Fc/Model/OpenCascadeTypes.h"
#include "Fc/Resource/Profile/FcProfileDefAttributes.h"
#include "Qor/Draw/Profile2D.h"
#include "Qor/Math/Extent.h"
#include "Qor/Math/Matrix.h"

namespace qor::fc {
class FcParams;
}
namespace qor::fc::resource::geometry {
class FcIndexedPolyCurve;
}

namespace qor::fc::resource::profile {

/// IfcProfileDef, Resource.Profile: an area in the plane, which bodies are swept from.
///
/// Every class turns itself into contours in its own XY plane, in metres, `Position` already
/// applied. The base forms report that a class has no such operation, and yield nothing. What a
/// class finds wrong with its dimensions it reports, and builds the contour from them all the same.
class QOR_API FcProfileDef : public FcProfileDefAttributes {
 public:
  /// The outer contour as a curve, then those of its holes; empty where there is none.
  virtual std::vector<std::shared_ptr<geometry::FcIndexedPolyCurve>> getAsIndexedPolyCurves() const;
  /// One `Profile2D` for each separate area, its contours in the sense in which the class makes
  /// them. Empty when there is nothing to draw.
  virtual std::vector<generate::draw::Profile2D> closedProfile(const FcParams& params) const;
  /// The same with the points, and flags by point, of every contour in reverse order.
  virtual std::vector<generate::draw::Profile2D> reversedClosedProfile(
      const FcParams& params) const;
  /// Moves and scales the area, by its position and dimensions.
  virtual void transform2d(const math::Matrix2d& matrix);
  /// A face for each area, in the XY plane. The base form reports that the class has none.
  virtual std::vector<TopoDS_Face> ocProfile(const FcParams& params) const;
  /// The curve that a surface sweeps; null where there is none. The base form reports itself.
  virtual OcCurve ocCurve(ocMemoizer& memoizer) const;
  /// A box around the area, or one that is larger; empty where there is nothing to draw. The base
  /// form is that of the contours' points, and reports itself.
  virtual std::optional<math::Extent2d> doGetPlanarBox(const FcParams& params) const;

  std::optional<math::Extent2d> planarBox(const FcParams& params) const {
    return doGetPlanarBox(params);
  }
  /// `closedProfile` with outer contours that run counter-clockwise, or clockwise, and holes that
  /// run the other way. Flags of edges stay as they are when a contour is turned. An area with a
  /// coordinate that isn't finite is left out.
  std::vector<generate::draw::Profile2D> closedProfileWithEnforcedOrientation(
      const FcParams& params, bool counterClockwise) const;
};

}  // namespace qor::fc::resource::profile
