#pragma once

#include <memory>

#include "Fc/Resource/Geometry/FcIndexedPolyCurve.h"
#include "Qor/Math/Matrix.h"

namespace qor::fc::resource::profile {

/// The outline of a shape as moves from point to point: straight ones and quarters of circles.
class ProfilePath {
 public:
  ProfilePath(double x, double y);

  ProfilePath& line(double dx, double dy);
  /// A quarter of a circle to the point that lies `radius` away in each of both directions, given
  /// as -1 or 1. No move for a radius that isn't above 0.
  ProfilePath& leftTurn(double radius, double x, double y) { return arc(radius, x, y, true); }
  ProfilePath& rightTurn(double radius, double x, double y) { return arc(radius, x, y, false); }

  /// Back to the start.
  ProfilePath& closeWithLine();

  /// The curve moved to its place. An open one serves as a ring, which has the edge back to its
  /// start by itself.
  std::shared_ptr<geometry::FcIndexedPolyCurve> placedAt(const math::Matrix2d& position) const;

 private:
  ProfilePath& arc(double radius, double x, double y, bool counterClockwise);

  std::shared_ptr<geometry::FcIndexedPolyCurve> m_curve;
};

}  // namespace qor::fc::resource::profile
