#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <vector>

#include "Fc/Resource/GeometricModel/FcTessellatedFaceSet.h"
#include "Fc/Shapes/ColourSplit.h"
#include "Qor/Draw/Material.h"

namespace qor::fc::resource::geometricmodel {

/// The colours that a map gives to the faces of a set, on the way to one part for each colour.
class FaceColours {
 public:
  /// A number that is no colour's.
  static constexpr std::uint32_t none = ~std::uint32_t{0};

  /// Both outlive this. The map has as many entries as the set has faces, none of which has a
  /// colour yet.
  FaceColours(const FcTessellatedFaceSet& set,
              const presentationappearance::FcIndexedColourMap& map);

  /// The face gets the colour of the map. False, with an assert, when that isn't in the list.
  bool take(std::size_t face);
  /// The face, which can't be drawn, belongs to no part.
  void leaveOut(std::size_t face) { m_colours[face] = none; }

  /// The parts, in the order of the colours; colours without faces have none. `make` gets the faces
  /// of a part and the numbers of the coordinates in it, and gives its set.
  template <class Part, class Make>
  std::vector<Part> parts(std::size_t coordinateCount, const Make& make) const {
    std::vector<Part> result;
    const FacesByColour byColour(m_colours, m_colourCount);
    CoordinateSubset subset(coordinateCount);
    for (std::size_t colour = 0; colour < m_colourCount; ++colour) {
      if (byColour.faces(colour).empty()) continue;
      subset.begin();
      result.push_back({make(byColour.faces(colour), subset), material(colour)});
    }
    return result;
  }

 private:
  std::shared_ptr<generate::draw::Material> material(std::size_t colour) const;

  const FcTessellatedFaceSet& m_set;
  const presentationappearance::FcIndexedColourMap& m_map;
  std::size_t m_colourCount;
  std::vector<std::uint32_t> m_colours;
};

}  // namespace qor::fc::resource::geometricmodel
