#include "Fc/Shapes/DirectrixSweep.h"

#include <algorithm>
#include <functional>
#include <utility>

#include "Qor/Assert/Report.h"
#include "Fc/Shapes/SweepFaces.h"
#include "Fc/Shapes/SweptRings.h"

namespace qor::fc::resource::geometricmodel {

using generate::draw::PolygonalFaceSetOpenGL;
using generate::draw::Profile2D;
using math::Matrix;
using math::Point3d;
using math::Vector3d;
using math::_3d::Plane;

namespace {

std::vector<Point3d> withoutRepeatedPoints(const std::vector<Point3d>& path) {
  std::vector<Point3d> result;
  result.reserve(path.size());
  for (const Point3d& point : path)
    if (result.empty() || !point.isNear(result.back())) result.push_back(point);
  return result;
}

/// Rings and faces of a body that follows a path, from its first leg on.
class PathSweep {
 public:
  PathSweep(const Profile2D& profile, const std::vector<Point3d>& path, const Vector3d& reference,
            bool closed)
      : m_profile(profile),
        m_path(path),
        m_reference(reference),
        m_closed(closed),
        m_rings(profile, path.size() - 1, false) {}

  /// False when the path is too short for a body.
  bool run() {
    placeFirstRing();
    Point3d station = m_path[0];
    for (std::size_t i = 2; i < m_path.size(); ++i) {
      const Point3d& corner = m_path[i - 1];
      if (addRing(mitrePlane(station, corner, m_path[i]), corner - station)) station = corner;
    }
    return finishAt(station);
  }

  PolygonalFaceSetOpenGL faceSet(const std::optional<Matrix>& frame) && {
    if (frame)
      for (Point3d& point : m_rings.points()) point = point * *frame;
    return std::move(m_rings).finish();
  }

 private:
  void placeFirstRing() {
    const Point3d& start = m_path[0];
    if (m_closed) {
      const Point3d& before = m_path[m_path.size() - 2];
      if (const auto seam = mitrePlane(before, start, m_path[1])) {
        place(sectionFrame(before, start, m_reference));
        if (moveLastRing(*seam, start - before)) return;
        m_rings.points() =
            getPointsInProfileForGeneratingFaceSet(m_profile, m_path.size() - 1, false);
      }
    }
    place(sectionFrame(start, m_path[1], m_reference));
    if (!m_closed) m_rings.addBottom();
  }

  void place(const Matrix& frame) {
    for (Point3d& point : m_rings.points()) point = point * frame;
  }

  bool finishAt(const Point3d& station) {
    const Point3d& last = m_path.back();
    if (m_closed && addRing(mitrePlane(station, last, m_path[1]), last - station)) return true;
    if (station.isNear(last)) {
      report(
          "Diretrix is a closed curve with less than three distinct points, or open with less "
          "than two distinct points.");
      return false;
    }
    if (!addRing(Plane(last, last - station), last - station)) return false;
    addTop();
    return true;
  }

  void addTop() {
    if (!m_rings.hasHardFaces())
      report("hardEdgeFaceset.m_faces is empty");
    else if (!m_closed)  // a closed path that starts on a straight stretch ends where it began
      m_rings.addTop(m_profile.contours().size() >= 2);
  }

  /// The last ring carried on along the leg to the plane; false, and no ring, where it doesn't
  /// reach it.
  bool addRing(const std::optional<Plane>& plane, const Vector3d& leg) {
    if (!plane) return false;
    std::vector<Point3d>& points = m_rings.points();
    const std::size_t size = points.size();
    for (std::size_t i = size - m_rings.ringSize(); i < size; ++i) points.push_back(points[i]);
    if (!moveLastRing(*plane, leg)) {
      points.resize(size);
      return false;
    }
    m_rings.addSides();
    return true;
  }

  bool moveLastRing(const Plane& plane, const Vector3d& leg) {
    std::vector<Point3d>& points = m_rings.points();
    for (std::size_t i = points.size() - m_rings.ringSize(); i < points.size(); ++i) {
      const auto moved = plane.projectAlongVectorEitherDirection(points[i], leg);
      if (!moved) return false;
      points[i] = *moved;
    }
    return true;
  }

  const Profile2D& m_profile;
  const std::vector<Point3d>& m_path;
  const Vector3d& m_reference;
  bool m_closed;
  SweptRings m_rings;
};

}  // namespace

std::optional<Plane> mitrePlane(const Point3d& a, const Point3d& b, const Point3d& c) {
  const Vector3d in = (b - a).normalized();
  const Vector3d out = (c - b).normalized();
  if (in.cross(out).isNear({})) return std::nullopt;
  return Plane(b, (in + out).normalized());
}

Matrix sectionFrame(const Point3d& p, const Point3d& q, const Vector3d& reference) {
  const Vector3d t = (q - p).normalized();
  Vector3d r = reference.isPerpendicular(t) ? reference : t.cross(reference.cross(t));
  if (r.isNear({})) r = t.cross({1, 0, 0});
  if (r.isNear({})) r = t.cross({0, 1, 0});
  return {p, r.normalized(), t};
}

std::optional<PolygonalFaceSetOpenGL> sweptAlongPath(const Profile2D& profile,
                                                     const std::vector<Point3d>& path,
                                                     const Vector3d& reference,
                                                     const std::optional<Matrix>& frame,
                                                     bool closed) {
  if (path.size() < 2) {
    report("Should have Directrix curve with more than 1 point");
    return std::nullopt;
  }
  if (profile.empty() || profile.contours().front().empty()) return std::nullopt;
  const std::vector<Point3d> stations = withoutRepeatedPoints(path);
  if (stations.size() < 2) {
    report(
        "Diretrix is a closed curve with less than three distinct points, or open with less than "
        "two distinct points.");
    return std::nullopt;
  }
  if (!std::all_of(stations.begin(), stations.end(), std::mem_fn(&Point3d::isFinite)))
    return std::nullopt;
  PathSweep sweep(profile, stations, reference, closed);
  if (!sweep.run()) return std::nullopt;
  return std::move(sweep).faceSet(frame);
}

}  // namespace qor::fc::resource::geometricmodel
