#pragma once

#include <cstddef>

namespace qor::fc::resource::geometry {

class FcRepresentationMap;

/// A map that this thread is working on, for a scope: how maps that lie within themselves, or too
/// deep in each other, are found before they use up the stack.
class MapNesting {
 public:
  /// Maps within each other beyond which nobody means it.
  static constexpr std::size_t limit = 256;

  explicit MapNesting(const FcRepresentationMap& map);
  MapNesting(const MapNesting&) = delete;
  MapNesting& operator=(const MapNesting&) = delete;
  ~MapNesting();

  /// False when the map is being worked on already, or lies too deep: it is to be left out.
  bool isAllowed() const { return m_allowed; }

 private:
  bool m_allowed;
};

}  // namespace qor::fc::resource::geometry
