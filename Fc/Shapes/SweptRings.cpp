#include "Fc/Shapes/SweptRings.h"

#include <cstdint>
#include <utility>

namespace qor::fc::resource::geometricmodel {

using generate::draw::PolygonalFaceSetOpenGL;
using generate::draw::Profile2D;

SweptRings::SweptRings(const Profile2D& profile, std::size_t stations, bool reverse)
    : m_profile(profile),
      m_points(getPointsInProfileForGeneratingFaceSet(profile, stations, reverse)),
      m_ringSize(m_points.size()),
      m_counter(m_ringSize - 1),
      m_isSoft(mayHaveSoftEdges(profile)) {
  sides().reserve(stations * m_ringSize + 2);
}

void SweptRings::addBottom() { m_hard.push_back(generateBottomFace(m_profile)); }

void SweptRings::addSides() {
  addIndexedFacesForSides(m_profile, m_ringSize, m_counter, sides(), nullptr);
}

void SweptRings::joinLastRingToFirst() {
  const auto back = static_cast<std::uint32_t>(m_points.size() - m_ringSize);
  std::uint32_t first = 0;
  for (const Profile2D::Contour& contour : m_profile.contours()) {
    const auto count = static_cast<std::uint32_t>(contour.size());
    for (std::uint32_t j = 0; count > 1 && j < count; ++j) {
      const std::uint32_t k = first + j;
      const std::uint32_t next = first + (j + 1) % count;
      sides().push_back({{back + k, back + next, next, k}, {}});
    }
    first += count;
  }
}

void SweptRings::addTop(bool hasVoids) {
  const std::size_t offset = m_isSoft ? m_ringSize : m_points.size() - m_ringSize;
  m_hard.push_back(generateTopFace(m_hard.front(), static_cast<std::uint32_t>(offset), hasVoids));
}

PolygonalFaceSetOpenGL SweptRings::finish() && {
  return sweptFaceSet(std::move(m_points), m_ringSize, std::move(m_hard), std::move(m_soft));
}

}  // namespace qor::fc::resource::geometricmodel
