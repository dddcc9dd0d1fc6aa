#pragma once

#include <optional>
#include <string_view>

#include "Qor/Math/Extent.h"
#include "Qor/Math/Matrix.h"

namespace qor::host::targets {

/// From where a model is looked at, always in parallel projection.
enum class View {
  plan,   ///< from above, Y up
  front,  ///< along Y, Z up
  side,   ///< against X, Z up
  iso,    ///< from above, between front and side
};

/// From "plan", "front", "side" or "iso".
std::optional<View> viewFromText(std::string_view text);

/// The frame of a view: a point in project coordinates times it has X to the right, Y upward and Z
/// towards the eye, in metres around `centre`.
math::Matrix viewFrame(View view, const math::Point3d& centre);

/// Where in a picture a point comes to be: pixels from the upper left corner, and a depth.
class Camera {
 public:
  /// Shows all of `box`, which must be valid, with a margin of a twentieth of the picture.
  Camera(View view, const math::Extent& box, double width, double height);

  /// X to the right and Y downward in pixels, Z towards the eye in metres.
  math::Point3d project(const math::Point3d& point) const { return point * m_frame; }
  /// The same as a matrix.
  const math::Matrix& frame() const { return m_frame; }
  /// The length of one metre in the picture's plane.
  double pixelsPerMetre() const { return m_scale; }

 private:
  math::Matrix m_frame;
  double m_scale = 1;
};

}  // namespace qor::host::targets
