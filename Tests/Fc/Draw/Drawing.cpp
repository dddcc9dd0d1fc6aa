#include "Tests/Fc/Draw/Drawing.h"

#include "Fc/Core/ProductExtension/FcRelContainedInSpatialStructure.h"
#include "Fc/Document/Document.h"
#include "Fc/Document/FcDrawInterfaceWrapper.h"
#include "Fc/Resource/GeometricConstraint/FcLocalPlacement.h"
#include "Fc/Resource/Geometry/FcAxis2Placement3D.h"
#include "Fc/Resource/Geometry/FcCartesianPoint.h"
#include "Fc/Resource/Geometry/FcCartesianTransformationOperator3D.h"
#include "Fc/Resource/Representation/FcProductDefinitionShape.h"

namespace qor::test {

using namespace fc::resource::geometry;
using namespace fc::core::productextension;
using fc::resource::geometricconstraint::FcLocalPlacement;
using namespace fc::resource::representation;

SmallModel::SmallModel() {
  project = make<fc::core::kernel::FcProject>("Project");
  storey = make<FcBuildingStorey>("Storey");
  project->aggregatesConnect(*data, storey);
}

SmallModel::Wall SmallModel::wall(const std::string& name) {
  auto wall = make<fc::shared::buildingelements::FcWall>(name);
  auto relation = storey->ContainsElements().lockFirst();
  if (!relation) {
    relation = make<FcRelContainedInSpatialStructure>();
    relation->setRelatingStructure(storey);
  }
  relation->insertRelatedElements(wall);
  return wall;
}

SmallModel::Item SmallModel::line(double x) {
  auto line = make<FcPolyline>();
  line->setPoints({makePoint(math::Point3d(x, 0, 0)), makePoint(math::Point3d(x + 1, 0, 0))});
  return line;
}

SmallModel::Shape SmallModel::shape(const std::string& identifier, Items items) {
  auto shape = make<FcShapeRepresentation>();
  shape->setRepresentationIdentifier(identifier);
  shape->setItems(std::move(items));
  return shape;
}

void SmallModel::give(fc::core::kernel::FcProduct& product, std::vector<Shape> shapes) {
  auto definition = make<FcProductDefinitionShape>();
  definition->setRepresentations({shapes.begin(), shapes.end()});
  product.setRepresentation(definition);
}

void SmallModel::place(fc::core::kernel::FcProduct& product, const math::Matrix& frame) {
  auto placement = make<FcLocalPlacement>();
  placement->setRelativePlacement(std::make_shared<FcAxis2Placement3D>(frame));
  product.setObjectPlacement(placement);
}

SmallModel::Map SmallModel::map(Items items) {
  auto map = make<FcRepresentationMap>();
  map->setMappedRepresentation(shape("Body", std::move(items)));
  return map;
}

std::shared_ptr<FcMappedItem> SmallModel::mapped(const Map& map) {
  auto item = make<FcMappedItem>();
  item->setMappingSource(map);
  item->setMappingTarget(make<FcCartesianTransformationOperator3D>());
  return item;
}

std::vector<std::string> drawn(const SmallModel::Item& item, RecordingTarget& target) {
  fc::FcDrawInterfaceWrapper wrapper(target);
  wrapper.drawConstRepresentationItem(item, fc::FcDrawParams(wrapper),
                                      generate::draw::SurfaceDrawType::Surface);
  return target.calls;
}

std::vector<std::string> drawn(const SmallModel::Item& item) {
  RecordingTarget target;
  return drawn(item, target);
}

std::vector<std::string> drawn(const SmallModel& model) {
  RecordingTarget target;
  fc::document::Document(model.data).generate(target);
  return target.calls;
}

std::vector<std::string> shapesOf(const std::vector<std::string>& calls) {
  std::vector<std::string> shapes;
  for (const std::string& call : calls)
    if (call.rfind("start", 0) && call.rfind("stop", 0) && call.rfind("material", 0))
      shapes.push_back(call);
  return shapes;
}

}  // namespace qor::test
