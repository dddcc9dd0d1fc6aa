#include "Fc/Resource/GeometricModel/FcBlock.h"

#include "Fc/FcDrawParams.h"
#include "Fc/Resource/GeometricModel/PositiveLength.h"
#include "Fc/Resource/GeometricModel/PrimitiveFaceSets.h"
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
  const PositiveLength check{"qor::fc::resource::geometricmodel::FcBlock::ValidXYZLengths",
                             math::Epsilon::current().general};
  const bool x = check(m_XLength,
                       "Assertion failed in FcBlock::ValidXYZLengths: XLength must be strictly "
                       "positive",
                       __LINE__);
  const bool y = check(m_YLength,
                       "Assertion failed in FcBlock::ValidXYZLengths: YLength must be strictly "
                       "positive",
                       __LINE__);
  const bool z = check(m_ZLength,
                       "Assertion failed in FcBlock::ValidXYZLengths: ZLength must be strictly "
                       "positive",
                       __LINE__);
  return x && y && z;
}

}  // namespace qor::fc::resource::geometricmodel
