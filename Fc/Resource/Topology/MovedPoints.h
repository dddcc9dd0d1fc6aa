#pragma once

#include "Qor/Math/Matrix.h"
#include "Qor/Platform/Export.h"

namespace qor::fc::resource::geometry {
class FcCartesianPoint;
}

namespace qor::fc::resource::topology {

/// The points that one `transform` has moved already: faces share their corners, and each of them
/// moves once.
///
/// The outermost of these on a thread keeps the list; those that are made while it lives, by the
/// parts of an item, add to it.
class QOR_API MovedPoints {
 public:
  MovedPoints();
  MovedPoints(const MovedPoints&) = delete;
  MovedPoints& operator=(const MovedPoints&) = delete;
  ~MovedPoints();

  /// Moves the point unless that was done.
  void move(geometry::FcCartesianPoint& point, const math::Matrix& matrix);

 private:
  bool m_outermost;
};

}  // namespace qor::fc::resource::topology
