#include "Fc/Resource/GeometricModel/FcRectangularPyramid.h"

#include "Fc/Drawing/FcDrawParams.h"
#include "Fc/Model/Report.h"
#include "Fc/Shapes/PrimitiveFaceSets.h"
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
  const double tolerance = math::Epsilon::current().general;
  const bool x =
      requireThat(*this, m_XLength > tolerance,
                  "Assertion failed in FcRectangularPyramid::ValidXYLengthsHeight: XLength "
                  "must be strictly positive");
  const bool y =
      requireThat(*this, m_YLength > tolerance,
                  "Assertion failed in FcRectangularPyramid::ValidXYLengthsHeight: YLength "
                  "must be strictly positive");
  const bool height = requireThat(*this, m_Height > tolerance,
                                  "Assertion failed in FcRectangularPyramid::ValidXYLengthsHeight: "
                                  "Height must be strictly positive");
  return x && y && height;
}

}  // namespace qor::fc::resource::geometricmodel
