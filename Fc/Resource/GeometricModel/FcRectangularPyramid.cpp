#include "Fc/Resource/GeometricModel/FcRectangularPyramid.h"

#include "Fc/FcDrawParams.h"
#include "Fc/Resource/GeometricModel/PositiveLength.h"
#include "Fc/Resource/GeometricModel/PrimitiveFaceSets.h"
#include "Qor/Draw/TransformationInterface.h"

namespace qor::fc::resource::geometricmodel {

void FcRectangularPyramid::draw(const FcDrawParams& params) const {
  if (!ValidXYLengthsHeight()) return;
  const generate::draw::TransformationGuard guard(params);
  applyPlacement(params);
  params->polygonalFaceSet(pyramidFaceSet(m_XLength, m_YLength, m_Height));
}

std::optional<math::Extent> FcRectangularPyramid::boundingBox(const FcParams& /*params*/) const {
  if (!ValidXYLengthsHeight()) return std::nullopt;
  return placedBox({{}, {m_XLength, m_YLength, m_Height}});
}

bool FcRectangularPyramid::ValidXYLengthsHeight() const {
  const PositiveLength check{
      "qor::fc::resource::geometricmodel::FcRectangularPyramid::ValidXYLengthsHeight",
      math::Epsilon::current().general};
  const bool x = check(m_XLength,
                       "Assertion failed in FcRectangularPyramid::ValidXYLengthsHeight: XLength "
                       "must be strictly positive",
                       __LINE__);
  const bool y = check(m_YLength,
                       "Assertion failed in FcRectangularPyramid::ValidXYLengthsHeight: YLength "
                       "must be strictly positive",
                       __LINE__);
  const bool height = check(m_Height,
                            "Assertion failed in FcRectangularPyramid::ValidXYLengthsHeight: "
                            "Height must be strictly positive",
                            __LINE__);
  return x && y && height;
}

}  // namespace qor::fc::resource::geometricmodel
