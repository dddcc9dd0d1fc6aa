#include "Examples/BalconySteel.h"

#include <utility>

namespace sample {

std::shared_ptr<FcColumnType> BalconySteel::createColumnType() {
  auto type = m_model.createRoot<FcColumnType>("HEA 160");
  type->setPredefinedType(FcColumnTypeEnum::COLUMN);
  const auto profile = m_shapes.iShape(0.16, 0.152, 0.006, 0.009, 0.015);
  m_shapes.setBody(*type, RepresentationType::SweptSolid,
                   {m_shapes.painted(substance::steel, m_shapes.extrude(profile, 2.9))});
  return type;
}

std::shared_ptr<FcColumn> BalconySteel::createColumn(const std::string& name,
                                                     const math::Point3d& foot,
                                                     const std::shared_ptr<FcProduct>& storey) {
  if (!m_columnType) m_columnType = createColumnType();
  auto column = m_model.createRoot<FcColumn>(name);
  m_model.place(*column, at(foot.x, foot.y, foot.z), storey);
  m_model.setType(*column, *m_columnType);
  m_shapes.showBodyOfType(*column, *m_columnType);
  return column;
}

std::shared_ptr<FcRailing> BalconySteel::createRailing(const std::shared_ptr<FcProduct>& storey) {
  constexpr double west = 4.06, east = 6.94, front = -1.54, height = 1;
  Items rods;
  const auto addRail = [&](double z, double radius) {
    rods.push_back(m_shapes.painted(
        substance::steel,
        m_shapes.rod({{west, 0, z}, {west, front, z}, {east, front, z}, {east, 0, z}}, radius,
                     0.08)));
  };
  const auto addPost = [&](double x, double y) {
    rods.push_back(
        m_shapes.painted(substance::steel, m_shapes.rod({{x, y, 0}, {x, y, height}}, 0.018)));
  };
  for (const double z : {0.15, 0.35, 0.55, 0.75}) addRail(z, 0.01);
  addRail(height, 0.025);
  for (const double x : {west + 0.1, west + 0.99, east - 0.99, east - 0.1}) addPost(x, front);
  for (const double x : {west, east})
    for (const double y : {-0.1, front + 0.1}) addPost(x, y);
  auto railing = m_model.createRoot<FcRailing>("Balcony railing");
  m_model.place(*railing, {}, storey);
  railing->setPredefinedType(FcRailingTypeEnum::GUARDRAIL);
  m_shapes.showBody(*railing, RepresentationType::AdvancedSweptSolid, std::move(rods));
  return railing;
}

}  // namespace sample
