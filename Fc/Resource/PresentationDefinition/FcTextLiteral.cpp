#include "Fc/Resource/PresentationDefinition/FcTextLiteral.h"

#include "Fc/Drawing/FcDrawParams.h"
#include "Fc/Model/Report.h"
#include "Qor/Draw/TransformationInterface.h"

namespace qor::fc::resource::presentationdefinition {

void FcTextLiteral::draw(const FcDrawParams& params) const {
  const generate::draw::TransformationGuard guard(params);
  params->vTransformationMultiply(m_Placement.transformationGet(), math::MatrixMultiplyOrder::left);
  params->vTextLiteral(m_Literal.c_str(), m_Literal.size());
}

void FcTextLiteral::transform(const math::Matrix& matrix) {
  if (matrix.isMirror()) report(*this, "transform not implemented to handle mirror of text");
  m_Placement.setTransformation(m_Placement.transformationGet() * matrix);
}

}  // namespace qor::fc::resource::presentationdefinition
