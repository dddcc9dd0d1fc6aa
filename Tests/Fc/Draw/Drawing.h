#pragma once

#include <initializer_list>
#include <memory>
#include <string>
#include <vector>

#include "Fc/Core/Kernel/FcProduct.h"
#include "Fc/Core/Kernel/FcProject.h"
#include "Fc/Core/ProductExtension/FcBuildingStorey.h"
#include "Fc/Data.h"
#include "Fc/Resource/Geometry/FcMappedItem.h"
#include "Fc/Resource/Geometry/FcPolyline.h"
#include "Fc/Resource/Geometry/FcRepresentationMap.h"
#include "Fc/Resource/Representation/FcShapeRepresentation.h"
#include "Fc/Shared/BuildingElements/FcWall.h"
#include "Qor/Math/Matrix.h"
#include "Tests/Support/RecordingTarget.h"

namespace qor::test {

/// A model of a project with one storey, and what tests put into it.
class SmallModel {
 public:
  using Item = std::shared_ptr<fc::resource::geometry::FcRepresentationItem>;
  using Items = std::vector<Item>;
  using Shape = std::shared_ptr<fc::resource::representation::FcShapeRepresentation>;
  using Wall = std::shared_ptr<fc::shared::buildingelements::FcWall>;
  using Map = std::shared_ptr<fc::resource::geometry::FcRepresentationMap>;

  SmallModel();

  template <class T>
  std::shared_ptr<T> make(const std::string& name = {}) {
    auto entity = data->create<T>();
    if constexpr (std::is_base_of_v<fc::core::kernel::FcRoot, T>) {
      entity->setGlobalId(Guid::generate());
      entity->setName(name);
    }
    return entity;
  }
  /// A wall in the storey.
  Wall wall(const std::string& name);
  /// The straight line of one metre along X that starts at this X.
  Item line(double x = 0);
  Shape shape(const std::string& identifier, Items items);
  void give(fc::core::kernel::FcProduct& product, std::vector<Shape> shapes);
  /// Puts it into this frame, relative to nothing.
  void place(fc::core::kernel::FcProduct& product, const math::Matrix& frame);
  Map map(Items items);
  std::shared_ptr<fc::resource::geometry::FcMappedItem> mapped(const Map& map);

  const std::shared_ptr<fc::Data> data = std::make_shared<fc::Data>();
  std::shared_ptr<fc::core::kernel::FcProject> project;
  std::shared_ptr<fc::core::productextension::FcBuildingStorey> storey;
};

/// What a target of a host is told when the item is drawn.
std::vector<std::string> drawn(const SmallModel::Item& item, RecordingTarget& target);
std::vector<std::string> drawn(const SmallModel::Item& item);

/// What it is told when the model is drawn.
std::vector<std::string> drawn(const SmallModel& model);

/// The calls without objects and materials.
std::vector<std::string> shapesOf(const std::vector<std::string>& calls);

}  // namespace qor::test
