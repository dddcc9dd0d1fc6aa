#include "Qor/Math/CurveDiscretization.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <optional>

#include "Qor/Math/MatrixFactory.h"

namespace qor::math {

namespace {

using std::numbers::pi;

/// The points of an arc of the given chord, relative to its start: the chord to each is found from
/// the whole one by turning and scaling. Unlike the way by the centre this keeps all digits when
/// the radius is many times the chord.
class ChordArc {
 public:
  ChordArc(const Vector2d& chord, double sweep) : m_chord(chord), m_sweep(sweep) {}

  Vector2d at(double fraction) const {
    const double scale = std::sin(m_sweep * fraction / 2) / std::sin(m_sweep / 2);
    return m_chord.rotate(m_sweep * (fraction - 1) / 2) * scale;
  }

 private:
  Vector2d m_chord;
  double m_sweep;
};

/// Points between the ends of an arc, relative to its start.
std::vector<Vector2d> innerPoints(const math::_2d::Arc& arc, const Vector2d& chord,
                                  std::size_t segments) {
  std::vector<Vector2d> points;
  if (segments == 0) return points;
  points.reserve(segments - 1);
  const ChordArc byChord(chord, arc.sweepAngle());
  const bool shallow = std::abs(arc.sweepAngle()) <= pi;  // else the chord may have no length
  for (std::size_t i = 1; i < segments; ++i) {
    const double fraction = static_cast<double>(i) / static_cast<double>(segments);
    points.push_back(shallow ? byChord.at(fraction)
                             : arc.point(arc.sweepAngle() * fraction) - arc.startPoint());
  }
  return points;
}

/// A frame with its origin at `start`, in whose XY plane the three points lie; empty when one isn't
/// finite or no plane is theirs alone.
std::optional<Matrix> frameOfThreePoints(const Point3d& start, const Point3d& via,
                                         const Point3d& end) {
  const Vector3d toEnd = end - start, normal = (via - start).cross(end - via);
  const double width = toEnd.length(), area = normal.length();
  if (!(width > 0) || !(area > 0) || !std::isfinite(width) || !std::isfinite(area)) return {};
  return Matrix(start, toEnd * (1 / width), normal * (1 / area));
}

}  // namespace

void CurveDiscretization::setMinMaxSegmentsOfFullCircle(std::size_t minimum, std::size_t maximum) {
  m_minSegments = minimum;
  m_maxSegments = maximum;
}

std::size_t CurveDiscretization::numberOfCircleSegments(double radius) const {
  if (!(radius > 0) || !std::isfinite(radius)) return 0;
  constexpr std::size_t fewest = 3;
  const std::size_t most = std::max(fewest, m_maxSegments);
  const std::size_t least = std::clamp(m_minSegments, fewest, most);
  if (!(m_chordValue > 0)) return most;
  if (m_chordValue >= radius) return least;
  // asin keeps the digits that 1 - chord / radius would lose for a great radius.
  const double halfStep = 2 * std::asin(std::sqrt(m_chordValue / (2 * radius)));
  const double wanted = std::ceil(pi / halfStep);
  if (!(wanted < static_cast<double>(most))) return most;
  return std::max(least, static_cast<std::size_t>(wanted));
}

std::size_t CurveDiscretization::numberOfArcSegments(double radius, Angle angle) const {
  const std::size_t circle = numberOfCircleSegments(radius);
  if (circle == 0 || angle == 0 || !std::isfinite(angle)) return 0;
  const double turns = std::min(1.0, std::abs(angle) / (2 * pi));
  // A quarter turn of 16 segments is 4, however its angle was rounded.
  const double wanted = std::ceil(turns * static_cast<double>(circle) - 1e-6);
  return std::max<std::size_t>(1, static_cast<std::size_t>(wanted));
}

std::unique_ptr<CurveDiscretization> CurveDiscretization::copy() const {
  return std::make_unique<CurveDiscretization>(*this);
}

std::vector<Point2d> CurveDiscretization::discretizeCircle(const Point2d& center, double radius,
                                                           Angle start) const {
  const std::size_t segments = numberOfCircleSegments(radius);
  std::vector<Point2d> points(segments);
  for (std::size_t i = 0; i < segments; ++i) {
    const double angle = start + 2 * pi * static_cast<double>(i) / static_cast<double>(segments);
    points[i] = center + Vector2d(std::cos(angle), std::sin(angle)) * radius;
  }
  return points;
}

std::vector<Point3d> CurveDiscretization::discretizeCircle(const Matrix& frame, double radius,
                                                           Angle start) const {
  return frame.transform(discretizeCircle(Point2d(), radius, start));
}

std::vector<Point2d> CurveDiscretization::discretizeCircularArc(const Point2d& center,
                                                                double radius, Angle start,
                                                                Angle sweep) const {
  const std::size_t segments = numberOfArcSegments(radius, sweep);
  std::vector<Point2d> points;
  if (segments == 0) return points;
  points.reserve(segments + 1);
  for (std::size_t i = 0; i <= segments; ++i) {
    const double angle = start + sweep * (static_cast<double>(i) / static_cast<double>(segments));
    points.push_back(center + Vector2d(std::cos(angle), std::sin(angle)) * radius);
  }
  return points;
}

std::vector<Point2d> CurveDiscretization::discretizeCircularArc(const Point2d& start,
                                                                const Point2d& via,
                                                                const Point2d& end) const {
  std::vector<Point2d> points;
  const auto arc = math::_2d::ArcFactory::fromThreePoints(start, via, end);
  if (!arc) return points;
  const auto segments = numberOfArcSegments(arc->radius(), arc->sweepAngle());
  if (segments == 0) return points;
  points.reserve(segments + 1);
  points.push_back(start);
  for (const Vector2d& inner : innerPoints(*arc, end - start, segments))
    points.push_back(start + inner);
  points.push_back(end);
  return points;
}

std::vector<Point3d> CurveDiscretization::discretizeCircularArc(const Point3d& start,
                                                                const Point3d& via,
                                                                const Point3d& end) const {
  std::vector<Point3d> points;
  const auto frame = frameOfThreePoints(start, via, end);
  if (!frame) return points;
  const Matrix toPlane = frame->inverse();
  const Point3d flatVia = via * toPlane, flatEnd = end * toPlane;
  const auto flat =
      discretizeCircularArc(Point2d(), {flatVia.x, flatVia.y}, {flatEnd.x, flatEnd.y});
  if (flat.empty()) return points;
  points = frame->transform(flat);
  points.front() = start;
  points.back() = end;
  return points;
}

}  // namespace qor::math
