#include "Fc/Resource/Geometry/FcCurve.h"

#include "Fc/Drawing/FcDrawParams.h"
#include "Fc/FcParams.h"
#include "Fc/Model/NotImplemented.h"
#include "Fc/Resource/Geometry/FcIndexedPolyCurve.h"

namespace qor::fc::resource::geometry {

using math::Extent;
using math::Extent2d;
using math::Point2d;
using math::Point3d;
using Segments = std::vector<std::pair<double, FcCurve::ParameterType>>;

namespace {

/// A value measured along pieces of one set of extents, in those of another.
class PieceWalk {
 public:
  explicit PieceWalk(double value) : m_value(value) {}

  /// False when the value lies in this piece, or in an earlier one.
  bool pass(double from, double to) {
    if (m_found) return false;
    if (m_value <= m_from + from) {
      m_to += from > 0 ? (m_value - m_from) / from * to : 0;
      m_found = true;
      return false;
    }
    m_from += from;
    m_to += to;
    return true;
  }
  double result() const { return m_to; }

 private:
  double m_value;
  double m_from = 0;
  double m_to = 0;
  bool m_found = false;
};

bool isSingleAngle(const Segments& segments) {
  return segments.size() == 1 && segments[0].second == FcCurve::ParameterType::angle;
}

/// The extent of a piece in the unit of the file.
double stored(const std::pair<double, FcCurve::ParameterType>& segment, double factor) {
  return segment.second == FcCurve::ParameterType::angle ? segment.first / factor : segment.first;
}

}  // namespace

bool FcCurve::isClosed(const FcParams& /*params*/) const {
  assertNotImplemented("isClosed() not implemented for class: ", *this);
  return false;
}

bool FcCurve::is2d() const {
  assertNotImplemented("is2d() not implemented for class: ", *this);
  return false;
}

std::shared_ptr<FcIndexedPolyCurve> FcCurve::getAsIndexedPolyCurve(
    const FcParams& /*params*/) const {
  assertNotImplemented("asIndexedPolyCurve() not implemented for class: ", *this);
  return nullptr;
}

std::optional<std::vector<Point2d>> FcCurve::closedCurve2dGet(const FcParams& /*params*/) const {
  assertNotImplemented("closedCurve2dGet(const qor::fc::FcParams&) not implemented for class: ",
                       *this);
  return {};
}

std::optional<std::vector<Point2d>> FcCurve::curve2d(const FcParams& /*params*/,
                                                     const Trim& /*trim1*/, const Trim& /*trim2*/,
                                                     bool /*reverse*/) const {
  assertNotImplemented("curve2d not implemented for class: ", *this);
  return {};
}

std::vector<Point3d> FcCurve::curveGet(const FcParams& /*params*/, const Trim& /*trim1*/,
                                       const Trim& /*trim2*/, bool /*reverse*/) const {
  assertNotImplemented("curveGet not implemented for class: ", *this);
  return {};
}

double FcCurve::convertParameterToSi(double value, double planeAngleFactor) const {
  const Segments segments = parametricSegments();
  if (isSingleAngle(segments)) return value * planeAngleFactor;
  PieceWalk walk(value);
  for (const auto& segment : segments)
    if (!walk.pass(stored(segment, planeAngleFactor), segment.first)) break;
  return walk.result();
}

double FcCurve::convertParameterFromSi(double value, double planeAngleFactor) const {
  const Segments segments = parametricSegments();
  if (isSingleAngle(segments)) return value / planeAngleFactor;
  PieceWalk walk(value);
  for (const auto& segment : segments)
    if (!walk.pass(segment.first, stored(segment, planeAngleFactor))) break;
  return walk.result();
}

void FcCurve::draw(const FcDrawParams& params) const {
  const auto points = curveGet(FcParams(params), {}, {}, false);
  if (!points.empty()) params->vPolyline(points);
}

std::optional<Extent> FcCurve::boundingBox(const FcParams& params) const {
  const Extent box = Extent::ofPoints(curveGet(params, {}, {}, false));
  return box.isValid() ? std::optional(box) : std::nullopt;
}

std::optional<Extent2d> FcCurve::planarBox(const FcParams& params) const {
  const auto points = curve2d(params, {}, {}, false);
  const Extent2d box = points ? Extent2d::ofPoints(*points) : Extent2d();
  return box.isValid() ? std::optional(box) : std::nullopt;
}

}  // namespace qor::fc::resource::geometry
