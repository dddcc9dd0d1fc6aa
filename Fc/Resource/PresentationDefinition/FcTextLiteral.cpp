#include "Fc/Resource/PresentationDefinition/FcTextLiteral.h"

#include "Fc/FcDrawParams.h"
#include "Qor/Assert/Assert.h"

namespace qor::fc::resource::presentationdefinition {

void FcTextLiteral::draw(const FcDrawParams& params) const {
  FcDrawInterface& target = params;
  const generate::draw::TransformationGuard guard(target);
  target.vTransformationMultiply(Placement().transformationGet(), math::MatrixMultiplyOrder::left);
  target.vTextLiteral(Literal().data(), Literal().size());
}

void FcTextLiteral::transform(const math::Matrix& matrix) {
  if (matrix.isMirror() && Assert::isEnabled())
    Assert::addAssert(
        {.message = "transform not implemented to handle mirror of text",
         .function = "qor::fc::resource::presentationdefinition::FcTextLiteral::transform",
         .source = "FcTextLiteral",
         .line = __LINE__});
  auto placement = Placement();
  placement.setTransformation(placement.transformationGet() * matrix);
  setPlacement(std::move(placement));
}

}  // namespace qor::fc::resource::presentationdefinition
