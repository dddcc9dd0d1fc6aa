#include "Fc/Resource/GeometricModel/FaceColours.h"

#include "Fc/Model/Report.h"
#include "Fc/Resource/PresentationAppearance/FcColourRgbList.h"
#include "Fc/Resource/PresentationAppearance/FcIndexedColourMap.h"

namespace qor::fc::resource::geometricmodel {

using generate::draw::Color;
using generate::draw::Material;

FaceColours::FaceColours(const FcTessellatedFaceSet& set,
                         const presentationappearance::FcIndexedColourMap& map)
    : m_set(set),
      m_map(map),
      m_colourCount(map.Colours()->ColourList().size()),
      m_colours(map.ColourIndex().size(), none) {}

bool FaceColours::take(std::size_t face) {
  const std::uint64_t colour = static_cast<std::uint64_t>(m_map.ColourIndex()[face].value()) - 1;
  if (!requireThat(m_set, colour < m_colourCount, "Invalid colour index in FcIndexedColourMap."))
    return false;
  m_colours[face] = static_cast<std::uint32_t>(colour);
  return true;
}

std::shared_ptr<Material> FaceColours::material(std::size_t colour) const {
  const auto& rgb = m_map.Colours()->ColourList()[colour];
  auto material = std::make_shared<Material>();
  material->setSurfaceColor(Color(static_cast<float>(rgb[0].value()),
                                  static_cast<float>(rgb[1].value()),
                                  static_cast<float>(rgb[2].value())));
  return material;
}

}  // namespace qor::fc::resource::geometricmodel
