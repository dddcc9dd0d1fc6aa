#include "Fc/Resource/GeometricModel/FcBlock.h"

#include "Fc/Drawing/FcDrawParams.h"
#include "Fc/Model/Report.h"
#include "Fc/Shapes/PrimitiveFaceSets.h"
#include "Qor/Draw/TransformationInterface.h"

namespace qor::fc::resource::geometricmodel {

void FcBlock::draw(const FcDrawParams& params) const {
  if (!ValidXYZLengths()) return;
  const generate::draw::TransformationGuard guard(params);
  applyPlacement(params);
  params->polygonalFaceSet(blockFaceSet(m_XLength, m_YLength, m_ZLength));
}

std::optional<math::Extent> FcBlock::boundingBox(const FcParams& /*params*/) const {
  if (!ValidXYZLengths()) return std::nullopt;
  return placedBox({{}, {m_XLength, m_YLength, m_ZLength}});
}

bool FcBlock::ValidXYZLengths() const {
  const double tolerance = math::Epsilon::current().general;
  const bool x =
      requireThat(*this, m_XLength > tolerance,
                  "Assertion failed in FcBlock::ValidXYZLengths: XLength must be strictly "
                  "positive");
  const bool y =
      requireThat(*this, m_YLength > tolerance,
                  "Assertion failed in FcBlock::ValidXYZLengths: YLength must be strictly "
                  "positive");
  const bool z =
      requireThat(*this, m_ZLength > tolerance,
                  "Assertion failed in FcBlock::ValidXYZLengths: ZLength must be strictly "
                  "positive");
  return x && y && z;
}

}  // namespace qor::fc::resource::geometricmodel
