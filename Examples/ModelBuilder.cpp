#include "Examples/ModelBuilder.h"

#include <array>
#include <utility>

#include "Fc/Core/Kernel/FcRelAggregates.h"
#include "Fc/Core/Kernel/FcRelDefinesByType.h"
#include "Fc/Core/ProductExtension/FcRelContainedInSpatialStructure.h"
#include "Fc/Resource/GeometricConstraint/FcLocalPlacement.h"
#include "Fc/Resource/Geometry/FcAxis2Placement3D.h"

namespace sample {

using fc::resource::geometricconstraint::FcLocalPlacement;
using fc::resource::geometry::makePlacement;

void ModelBuilder::identify(FcRoot& root) {
  const std::array<std::uint8_t, 8> tail{0x8A, 0x31, 0x5C, 0x0E, 0x77, 0xD2, 0x46, 0x9B};
  root.setGuid(Guid(0x1D3F5A00 + ++m_rootCount, 0x6B2C, 0x4E91, tail));
}

void ModelBuilder::place(FcProduct& product, const math::Matrix& frame,
                         const std::shared_ptr<FcProduct>& in) {
  auto placement = create<FcLocalPlacement>();
  if (in) placement->setPlacementRelTo(in->ObjectPlacement());
  // Points, directions and frames needn't be listed: what an entity names is owned by it and
  // written with it.
  placement->setRelativePlacement(makePlacement(frame));
  product.setObjectPlacement(placement);
}

void ModelBuilder::aggregate(const std::shared_ptr<FcObjectDefinition>& whole,
                             std::vector<std::shared_ptr<FcObjectDefinition>> parts) {
  auto relation = createRoot<FcRelAggregates>();
  relation->setRelatingObject(whole);
  relation->setRelatedObjects(std::move(parts));
}

void ModelBuilder::contain(const std::shared_ptr<FcSpatialElement>& structure,
                           std::vector<std::shared_ptr<FcProduct>> elements) {
  auto relation = createRoot<FcRelContainedInSpatialStructure>();
  relation->setRelatingStructure(structure);
  relation->setRelatedElements(std::move(elements));
}

void ModelBuilder::setType(FcObject& occurrence, FcTypeObject& type) {
  type.IsTypedByConnect(*m_data, occurrence, [this](FcRelDefinesByType& made) { identify(made); });
}

host::step::WriteResult ModelBuilder::write(const std::filesystem::path& path) const {
  host::step::WriteOptions options;
  options.header.description = {"A house of two storeys"};
  options.header.name = "sample.ifc";
  options.header.timeStamp = "2025-01-01T12:00:00";  // left empty, it is the time of writing
  options.header.originatingSystem = "sample_model";
  options.numbers = m_numbers;
  return host::step::writeStepFile(*m_data, path, options);
}

}  // namespace sample
