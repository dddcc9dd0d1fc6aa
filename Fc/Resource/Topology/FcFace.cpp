#include "Fc/Resource/Topology/FcFace.h"

#include <algorithm>

#include "Fc/Drawing/FcDrawParams.h"
#include "Fc/FcParams.h"
#include "Fc/Model/Report.h"
#include "Fc/Resource/BoxUnion.h"
#include "Fc/Resource/Geometry/FcCartesianPoint.h"
#include "Fc/Resource/Topology/FcFaceOuterBound.h"
#include "Fc/Resource/Topology/FcPolyLoop.h"
#include "Fc/Resource/Topology/MovedPoints.h"
#include "Qor/Math/PointFactory.h"

namespace qor::fc::resource::topology {

using generate::draw::PolygonalFaceSetOpenGL;

namespace {

/// The class itself, none below it.
template <class T>
bool isExactly(const FcBase& entity) {
  return entity.classId() == T::firstClassId;
}

/// The rings of a face: flat ones while all its loops are flat, spatial ones from the first on that
/// isn't.
class Contours {
 public:
  void add(const FcFaceBound& bound, bool outer, const FcParams& params) {
    if (m_flat && !addFlat(bound, outer, params)) turnSpatial();
    if (!m_flat) insert(m_spatial, bound.getPoints3d(params), outer);
  }
  void drawInto(FcDrawInterface& target) const {
    if (m_flat)
      target.vPolygon(m_planar);
    else
      target.vPolygon(m_spatial);
  }

 private:
  bool addFlat(const FcFaceBound& bound, bool outer, const FcParams& params) {
    std::vector<math::Point2d> points;
    if (!bound.getPoints2d(points, params)) return false;
    insert(m_planar, std::move(points), outer);
    return true;
  }
  void turnSpatial() {
    m_flat = false;
    for (const auto& ring : m_planar)
      m_spatial.push_back(math::_3d::PointFactory::fromPoints(ring));
  }
  template <class Rings, class Ring>
  static void insert(Rings& rings, Ring&& ring, bool outer) {
    rings.insert(outer ? rings.begin() : rings.end(), std::forward<Ring>(ring));
  }

  bool m_flat = true;
  std::vector<std::vector<math::Point2d>> m_planar;
  std::vector<std::vector<math::Point3d>> m_spatial;
};

/// The indices of the loop's points in its direction; false for a loop that is no polygon.
bool indexLoop(const FcFaceBound& bound, std::vector<math::Point3d>& coordinates,
               PointIndices& indices, std::vector<std::uint32_t>& ring) {
  if (!bound.Bound()) {
    report("Missing non-optional attribute: Bound");
    return false;
  }
  if (!isExactly<FcPolyLoop>(*bound.Bound())) return false;
  const auto& polygon = static_cast<const FcPolyLoop&>(*bound.Bound()).Polygon();
  ring.reserve(polygon.size());
  const auto add = [&](const std::shared_ptr<geometry::FcCartesianPoint>& point) {
    if (!point) {
      report("Assertion failed: expect valid FcCartesianPoint");
      return;
    }
    const auto next = static_cast<std::uint32_t>(coordinates.size());
    const std::uint32_t index = indices.findOrInsert(point.get(), next);
    if (index == next) {
      const auto& at = point->Coordinates();
      coordinates.emplace_back(at[0], at[1], at[2]);
    }
    ring.push_back(index);
  };
  if (bound.Orientation())
    std::for_each(polygon.begin(), polygon.end(), add);
  else
    std::for_each(polygon.rbegin(), polygon.rend(), add);
  return true;
}

}  // namespace

void FcFace::draw(const FcDrawParams& params) const {
  if (m_Bounds.empty()) return;
  const FcParams evaluation(params);
  Contours contours;
  bool hasOuter = false;
  for (const auto& bound : m_Bounds) {
    if (!bound) {
      report(*this, "Assertion failed: expect all Bounds() of an FcFace to exist.");
      return;
    }
    const bool outer = isExactly<FcFaceOuterBound>(*bound);
    if (outer && hasOuter) {
      report(*this,
             "Assertion failed: This FcFace has more than one FcFaceOuterBound which contradicts "
             "IFC4. Not drawing this face!");
      return;
    }
    hasOuter = hasOuter || outer;
    contours.add(*bound, outer, evaluation);
  }
  if (hasOuter)
    contours.drawInto(params);
  else
    report(
        *this,
        "Assertion failed: If there is more than 1 face boundary, exactly one of them must be of "
        "type FcFaceOuterBound. Not drawing this face!");
}

void FcFace::transform(const math::Matrix& matrix) {
  const MovedPoints moved;
  for (const auto& bound : m_Bounds) {
    if (bound)
      bound->transform(matrix);
    else
      report(*this, "Expect to have a valid face");
  }
}

std::optional<math::Extent> FcFace::boundingBox(const FcParams& params) const {
  return unitedBox(m_Bounds, params);
}

std::optional<PolygonalFaceSetOpenGL::Face> FcFace::generateIndexedFace(
    std::vector<math::Point3d>& coordinates, PointIndices& indices) const {
  const auto isOuter = [](const std::shared_ptr<FcFaceBound>& bound) {
    return bound && isExactly<FcFaceOuterBound>(*bound);
  };
  const auto outer = std::find_if(m_Bounds.begin(), m_Bounds.end(), isOuter);
  PolygonalFaceSetOpenGL::Face face;
  const auto addTo = [&](const std::shared_ptr<FcFaceBound>& bound,
                         std::vector<std::uint32_t>& ring) {
    if (bound) return indexLoop(*bound, coordinates, indices, ring);
    report(*this, "Missing non-optional attribute: Bound");
    return false;
  };

  const auto first = outer != m_Bounds.end() ? outer : m_Bounds.begin();
  if (first == m_Bounds.end() || !addTo(*first, face.outer)) return std::nullopt;
  face.holes.reserve(m_Bounds.size() - 1);
  for (auto bound = m_Bounds.begin(); bound != m_Bounds.end(); ++bound)
    if (bound != first && !addTo(*bound, face.holes.emplace_back())) return std::nullopt;
  return face;
}

}  // namespace qor::fc::resource::topology
