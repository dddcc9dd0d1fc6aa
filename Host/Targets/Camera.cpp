#include "Host/Targets/Camera.h"

#include <algorithm>
#include <cmath>

namespace qor::host::targets {

namespace {

using math::Matrix;
using math::Point3d;
using math::Vector3d;

constexpr double margin = 0.05;

/// The frame's columns are the directions of the picture, its rows the world's axes.
Matrix frameOf(const Vector3d& right, const Vector3d& up) {
  const Vector3d eye = right.cross(up);
  return {{right.x, up.x, eye.x}, {right.y, up.y, eye.y}, {right.z, up.z, eye.z}, {}};
}

}  // namespace

std::optional<View> viewFromText(std::string_view text) {
  if (text == "plan") return View::plan;
  if (text == "front") return View::front;
  if (text == "side") return View::side;
  if (text == "iso") return View::iso;
  return std::nullopt;
}

Matrix viewFrame(View view, const Point3d& centre) {
  const Matrix toCentre = Matrix::createTranslation({-centre.x, -centre.y, -centre.z});
  const double half = std::sqrt(0.5), sixth = std::sqrt(1.0 / 6);
  switch (view) {
    case View::plan:
      return toCentre * frameOf({1, 0, 0}, {0, 1, 0});
    case View::front:
      return toCentre * frameOf({1, 0, 0}, {0, 0, 1});
    case View::side:
      return toCentre * frameOf({0, 1, 0}, {0, 0, 1});
    case View::iso:
      break;
  }
  return toCentre * frameOf({half, half, 0}, {-sixth, sixth, 2 * sixth});
}

Camera::Camera(View view, const math::Extent& box, double width, double height) {
  const Matrix frame = viewFrame(view, box.center());
  const Vector3d size = box.transformExtent(frame).size();
  const double room = 1 - 2 * margin;
  const double smallest = 1e-3;  // a single point is shown as if it were this large
  m_scale =
      room * std::min(width / std::max(size.x, smallest), height / std::max(size.y, smallest));
  m_frame =
      frame * Matrix({m_scale, 0, 0}, {0, -m_scale, 0}, {0, 0, 1}, {width / 2, height / 2, 0});
}

}  // namespace qor::host::targets
