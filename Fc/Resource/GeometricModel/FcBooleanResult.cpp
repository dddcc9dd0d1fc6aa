#include "Fc/Resource/GeometricModel/FcBooleanResult.h"

#include "Fc/Drawing/DrawByProcessor.h"
#include "Fc/FcParams.h"
#include "Fc/Model/Nesting.h"
#include "Fc/Resource/GeometricModel/BooleanOperators.h"

namespace qor::fc::resource::geometricmodel {

void FcBooleanResult::draw(const FcDrawParams& params) const { drawByProcessor(*this, params); }

void FcBooleanResult::transform(const math::Matrix& matrix) {
  for (FcBooleanOperand* operand : {&m_FirstOperand, &m_SecondOperand})
    if (const auto item = operand->asGeometricRepresentationItemNonConst()) item->transform(matrix);
}

std::optional<math::Extent> FcBooleanResult::boundingBox(const FcParams& params) const {
  using Box = std::optional<math::Extent>;
  const Nesting nesting(Nesting::Kind::conversion, *this);
  if (!nesting) return {};
  const auto first = [&] { return FirstOperand().boundingBox(params); };
  const auto both = [&](math::Extent (math::Extent::*combine)(const math::Extent&) const) -> Box {
    const Box a = first(), b = SecondOperand().boundingBox(params);
    if (!a || !b) return {};
    return ((*a).*combine)(*b);
  };
  return byOperator<Box>(
      *this, first, [&] { return both(&math::Extent::intersectWith); },
      [&] { return both(&math::Extent::uniteWith); });
}

void FcBooleanResult::forEachPresentationStyle(
    const std::function<void(const presentationappearance::FcPresentationStyle&)>& callback) const {
  const Nesting nesting(Nesting::Kind::conversion, *this);
  if (!nesting) return;
  if (const auto* first = fcCast<geometry::FcRepresentationItem>(FirstOperand().getEntity()))
    first->forEachPresentationStyle(callback);
  FcGeometricRepresentationItem::forEachPresentationStyle(callback);
}

}  // namespace qor::fc::resource::geometricmodel
