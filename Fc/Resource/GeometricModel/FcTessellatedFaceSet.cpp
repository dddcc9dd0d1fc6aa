#include "Fc/Resource/GeometricModel/FcTessellatedFaceSet.h"

#include "Fc/Drawing/FcDrawParams.h"
#include "Fc/Model/Report.h"
#include "Fc/Resource/GeometricModel/FcCartesianPointList3D.h"
#include "Fc/Resource/PresentationAppearance/FcColourRgbList.h"
#include "Fc/Resource/PresentationAppearance/FcIndexedColourMap.h"
#include "Qor/Draw/DrawInterface.h"

namespace qor::fc::resource::geometricmodel {

using presentationappearance::FcIndexedColourMap;

std::optional<math::Extent> FcTessellatedFaceSet::boundingBox(const FcParams& /*params*/) const {
  if (!m_Coordinates) {
    report(*this,
           "Assertion failed in FcTessellatedFaceSet::boundingBox: expect to have Coordinates()");
    return std::nullopt;
  }
  math::Extent box;
  for (const auto& coordinate : m_Coordinates->CoordList())
    box.include({coordinate[0], coordinate[1], coordinate[2]});
  if (box.isValid()) return box;
  report(*this,
         "in FcTessellatedFaceSet::boundingBox: could not create valid extent from *Coordinates()");
  return std::nullopt;
}

std::optional<std::vector<generate::draw::TextureCoordinate>>
FcTessellatedFaceSet::getTextureCoordinates() const {
  return std::nullopt;
}

bool FcTessellatedFaceSet::hasCoordinates() const {
  return m_Coordinates && !m_Coordinates->CoordList().empty();
}

std::shared_ptr<FcIndexedColourMap> FcTessellatedFaceSet::usableColourMap() const {
  std::shared_ptr<FcIndexedColourMap> map = m_HasColours.lock();
  const bool usable =
      map && map->Colours() && !map->Colours()->ColourList().empty() && hasCoordinates();
  return usable ? map : nullptr;
}

generate::draw::DrawInterface* FcTessellatedFaceSet::materialTarget(const FcDrawParams& params) {
  FcDrawInterface& target = params;
  return dynamic_cast<generate::draw::DrawInterface*>(&target);
}

}  // namespace qor::fc::resource::geometricmodel
