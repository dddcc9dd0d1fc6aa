#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "Fc/Resource/Measure/FcPositiveInteger.h"

namespace qor::fc::resource::geometricmodel {

/// From the positions in a model's lists of indices, which begin at 1, to the coordinates of its
/// point list, which are counted from 0.
///
/// Positions go through the list `PnIndex` of the face set where it has entries. Refers to that
/// list; it must outlive this.
class CoordinatePositions {
 public:
  using PnIndex = std::optional<std::vector<measure::FcPositiveInteger>>;

  /// Answers that are no coordinate. Point lists are expected to be shorter than these.
  static constexpr std::uint32_t outsidePnIndex = 0xFFFFFFFF;
  static constexpr std::uint32_t outsideCoordinates = 0xFFFFFFFE;

  CoordinatePositions(const PnIndex& pnIndex, std::size_t coordinateCount)
      : m_pnIndex(pnIndex && !pnIndex->empty() ? pnIndex->data() : nullptr),
        m_pnCount(m_pnIndex ? pnIndex->size() : 0),
        m_coordinateCount(coordinateCount) {}

  /// A position of 0 or below is as wrong as one that is too large.
  std::uint32_t operator()(std::int64_t position) const {
    if (m_pnIndex) {
      const std::uint64_t place = static_cast<std::uint64_t>(position) - 1;
      if (place >= m_pnCount) return outsidePnIndex;
      position = m_pnIndex[place];
    }
    const std::uint64_t coordinate = static_cast<std::uint64_t>(position) - 1;
    return coordinate < m_coordinateCount ? static_cast<std::uint32_t>(coordinate)
                                          : outsideCoordinates;
  }

 private:
  const measure::FcPositiveInteger* m_pnIndex;
  std::size_t m_pnCount;
  std::size_t m_coordinateCount;
};

}  // namespace qor::fc::resource::geometricmodel
