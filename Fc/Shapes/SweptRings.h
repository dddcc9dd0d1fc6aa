#pragma once

#include <cstddef>
#include <vector>

#include "Fc/Shapes/SweepFaces.h"

namespace qor::fc::resource::geometricmodel {

/// A swept body under way: its rings of points, from the first on, and the faces over them. All
/// sides are soft together, when the profile may have soft edges, or hard together.
class SweptRings {
 public:
  /// The first ring is that of `getPointsInProfileForGeneratingFaceSet`; there is room for
  /// `stations` more. The profile outlives this.
  SweptRings(const generate::draw::Profile2D& profile, std::size_t stations, bool reverse);

  /// Those of all rings in order. Who adds a ring adds `ringSize` of them, and then its sides.
  std::vector<math::Point3d>& points() { return m_points; }
  const std::vector<math::Point3d>& points() const { return m_points; }
  std::size_t ringSize() const { return m_ringSize; }

  void addBottom();
  /// Quads from the ring before the last to the last one.
  void addSides();
  /// Quads from the last ring to the first: the body goes all round.
  void joinLastRingToFirst();
  bool hasHardFaces() const { return !m_hard.empty(); }
  /// Over the last ring; the bottom is there already.
  void addTop(bool hasVoids);

  generate::draw::PolygonalFaceSetOpenGL finish() &&;

 private:
  SweptFaces& sides() { return m_isSoft ? m_soft : m_hard; }

  const generate::draw::Profile2D& m_profile;
  std::vector<math::Point3d> m_points;
  std::size_t m_ringSize;
  std::size_t m_counter;
  bool m_isSoft;
  SweptFaces m_hard;
  SweptFaces m_soft;
};

}  // namespace qor::fc::resource::geometricmodel
