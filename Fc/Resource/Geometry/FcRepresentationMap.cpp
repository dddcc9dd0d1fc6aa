#include "Fc/Resource/Geometry/FcRepresentationMap.h"

#include "Fc/Drawing/FcDrawParams.h"
#include "Fc/Drawing/FcGenerateParams.h"
#include "Fc/Resource/Representation/FcRepresentation.h"

namespace qor::fc::resource::geometry {

using generate::draw::TransformationGuard;
using math::MatrixMultiplyOrder;

void FcRepresentationMap::draw(const FcDrawParams& params) const {
  if (!MappedRepresentation()) return;
  FcDrawInterface& target = params;
  const TransformationGuard guard(target);
  target.vTransformationMultiply(MappingOrigin().transformationGet(), MatrixMultiplyOrder::left);
  MappedRepresentation()->draw(params);
}

void FcRepresentationMap::generate(FcGenerateParams& params) const {
  if (!MappedRepresentation() || !params.isEnabled(*MappedRepresentation())) return;
  FcDrawInterface* const target = params.drawInterface();
  if (!target) return MappedRepresentation()->generate(params);
  const TransformationGuard guard(*target);
  target->vTransformationMultiply(MappingOrigin().transformationGet(), MatrixMultiplyOrder::left);
  MappedRepresentation()->generate(params);
}

std::optional<math::Extent> FcRepresentationMap::boundingBox(const FcParams& params) const {
  if (!MappedRepresentation()) return {};
  const auto box = MappedRepresentation()->boundingBox(params);
  if (!box) return {};
  return box->transformExtent(MappingOrigin().transformationGet());
}

}  // namespace qor::fc::resource::geometry
