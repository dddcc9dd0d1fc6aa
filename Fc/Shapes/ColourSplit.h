#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "Qor/Platform/Export.h"

namespace qor::fc::resource::geometricmodel {

/// The faces of each colour, in their order. Linear in faces and colours.
class QOR_API FacesByColour {
 public:
  /// One entry for each face: its colour, counted from 0; a face without one has a number that is
  /// no colour's and is left out.
  FacesByColour(const std::vector<std::uint32_t>& colourOfFace, std::size_t colourCount);

  std::span<const std::uint32_t> faces(std::size_t colour) const {
    return {m_faces.data() + m_begin[colour], m_begin[colour + 1] - m_begin[colour]};
  }

 private:
  std::vector<std::uint32_t> m_faces;
  std::vector<std::size_t> m_begin;
};

/// The coordinates that one part of a face set uses, numbered anew in the order of their first use.
///
/// One object serves all parts of a set in turn: the table, 8 bytes for each coordinate, is made
/// once, and a new part costs nothing.
class QOR_API CoordinateSubset {
 public:
  explicit CoordinateSubset(std::size_t coordinateCount) : m_entries(coordinateCount) {}

  /// Begins a part that uses no coordinate yet.
  void begin() {
    ++m_part;
    m_used.clear();
  }
  /// The number of a coordinate within the part, from 0.
  std::uint32_t number(std::uint32_t coordinate) {
    Entry& entry = m_entries[coordinate];
    if (entry.part != m_part) {
      entry = {m_part, static_cast<std::uint32_t>(m_used.size())};
      m_used.push_back(coordinate);
    }
    return entry.number;
  }
  /// The coordinates of the part, by their number in it.
  const std::vector<std::uint32_t>& used() const { return m_used; }
  /// What the part has of a list with an entry for each coordinate.
  template <class T>
  std::vector<T> of(const std::vector<T>& list) const {
    std::vector<T> result;
    result.reserve(m_used.size());
    for (const std::uint32_t coordinate : m_used) result.push_back(list[coordinate]);
    return result;
  }
  template <class T>
  std::optional<std::vector<T>> of(const std::optional<std::vector<T>>& list) const {
    if (!list) return std::nullopt;
    return of(*list);
  }

 private:
  struct Entry {
    std::uint32_t part = 0;
    std::uint32_t number = 0;
  };
  std::vector<Entry> m_entries;
  std::vector<std::uint32_t> m_used;
  std::uint32_t m_part = 0;
};

}  // namespace qor::fc::resource::geometricmodel
