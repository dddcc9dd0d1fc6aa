#pragma once

#include <memory>
#include <string>

#include "Examples/ShapeBuilder.h"
#include "Fc/Shared/BuildingElements/FcColumn.h"
#include "Fc/Shared/BuildingElements/FcColumnType.h"
#include "Fc/Shared/BuildingElements/FcRailing.h"

namespace sample {

using namespace qor::fc::shared::buildingelements;

/// Columns and railing of the balcony, which lies on [4, 7] by [-1.6, 0] of the house.
class BalconySteel {
 public:
  BalconySteel(ModelBuilder& model, ShapeBuilder& shapes) : m_model(model), m_shapes(shapes) {}

  /// Of 2.90 m; all columns are of one type.
  std::shared_ptr<FcColumn> createColumn(const std::string& name, const math::Point3d& foot,
                                         const std::shared_ptr<FcProduct>& storey);
  /// Rails with rounded corners, and posts.
  std::shared_ptr<FcRailing> createRailing(const std::shared_ptr<FcProduct>& storey);

 private:
  std::shared_ptr<FcColumnType> createColumnType();

  ModelBuilder& m_model;
  ShapeBuilder& m_shapes;
  std::shared_ptr<FcColumnType> m_columnType;
};

}  // namespace sample
