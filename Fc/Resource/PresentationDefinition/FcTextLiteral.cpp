#include "Fc/Resource/PresentationDefinition/FcTextLiteral.h"

#include "Fc/FcDrawParams.h"
#include "Fc/Resource/Report.h"
#include "Qor/Draw/TransformationInterface.h"

namespace qor::fc::resource::presentationdefinition {

void FcTextLiteral::draw(const FcDrawParams& params) const {
  const generate::draw::TransformationGuard guard(params);
  params->vTransformationMultiply(m_Placement.transformationGet(), math::MatrixMultiplyOrder::left);
  params->vTextLiteral(m_Literal.c_str(), m_Literal.size());
}

void FcTextLiteral::transform(const math::Matrix& matrix) {
  if (matrix.isMirror())
    report("transform not implemented to handle mirror of text",
           "qor::fc::resource::presentationdefinition::FcTextLiteral::transform", __LINE__);
  m_Placement.setTransformation(m_Placement.transformationGet() * matrix);
}

}  // namespace qor::fc::resource::presentationdefinition
