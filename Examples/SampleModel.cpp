// A first program on the library: a house of two storeys, made from nothing and written as a STEP
// file.
//
//     sample_model out.ifc
//
// Read it from `main` at the end upwards. The road is the same for every model:
//
//   1. Make a `Data`. It is the model: it lists all entities, owns them and answers queries.
//   2. `data->create<FcWall>()` makes an entity of a class and lists it. Every class of the schema
//      has a header of its own name in the folder of its group.
//   3. The setters are typed and named after the attributes of the schema. An attribute that must
//      have a value takes that value, an OPTIONAL one also `std::nullopt`. Numbers are in SI units
//      and radians.
//   4. Entities are related by the schema's relationship classes. Setting one side of a
//      relationship writes the other: once `RelatedElements` of a containment names a wall, the
//      wall's `ContainedInStructure()` finds the storey.
//   5. Whatever has an identity (all below `FcRoot`) needs a guid.
//
// The order below, project first, is that in which a reader of the file looks for things; the
// library doesn't ask for it.

#include <array>
#include <cstdio>
#include <exception>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "Fc/Core/Kernel/FcProject.h"
#include "Fc/Core/Kernel/FcPropertySet.h"
#include "Fc/Core/Kernel/FcRelAggregates.h"
#include "Fc/Core/Kernel/FcRelAssociatesClassification.h"
#include "Fc/Core/Kernel/FcRelDefinesByProperties.h"
#include "Fc/Core/Kernel/FcRelDefinesByType.h"
#include "Fc/Core/ProductExtension/FcBuilding.h"
#include "Fc/Core/ProductExtension/FcBuildingStorey.h"
#include "Fc/Core/ProductExtension/FcElementQuantity.h"
#include "Fc/Core/ProductExtension/FcOpeningElement.h"
#include "Fc/Core/ProductExtension/FcRelContainedInSpatialStructure.h"
#include "Fc/Core/ProductExtension/FcRelFillsElement.h"
#include "Fc/Core/ProductExtension/FcRelVoidsElement.h"
#include "Fc/Core/ProductExtension/FcSite.h"
#include "Fc/Core/ProductExtension/FcSpace.h"
#include "Fc/Data.h"
#include "Fc/Resource/ExternalReference/FcClassification.h"
#include "Fc/Resource/ExternalReference/FcClassificationReference.h"
#include "Fc/Resource/GeometricConstraint/FcLocalPlacement.h"
#include "Fc/Resource/Geometry/FcAxis2Placement3D.h"
#include "Fc/Resource/Geometry/FcCartesianPoint.h"
#include "Fc/Resource/Geometry/FcDirection.h"
#include "Fc/Resource/Measure/FcDerivedUnit.h"
#include "Fc/Resource/Measure/FcDerivedUnitElement.h"
#include "Fc/Resource/Measure/FcSIUnit.h"
#include "Fc/Resource/Measure/FcUnitAssignment.h"
#include "Fc/Resource/Property/FcPropertySingleValue.h"
#include "Fc/Resource/Quantity/FcQuantityArea.h"
#include "Fc/Resource/Quantity/FcQuantityLength.h"
#include "Fc/Resource/Representation/FcGeometricRepresentationSubContext.h"
#include "Fc/Shared/BuildingElements/FcDoor.h"
#include "Fc/Shared/BuildingElements/FcSlab.h"
#include "Fc/Shared/BuildingElements/FcWall.h"
#include "Fc/Shared/BuildingElements/FcWallType.h"
#include "Fc/Shared/BuildingElements/FcWindow.h"
#include "Host/StepFile/StepWriter.h"

namespace {

using namespace qor;
using namespace qor::fc::core::kernel;
using namespace qor::fc::core::productextension;
using namespace qor::fc::resource::externalreference;
using namespace qor::fc::resource::geometricconstraint;
using namespace qor::fc::resource::geometry;
using namespace qor::fc::resource::measure;
using namespace qor::fc::resource::property;
using namespace qor::fc::resource::quantity;
using namespace qor::fc::resource::representation;
using namespace qor::fc::shared::buildingelements;

/// In metres.
struct Position {
  double x, y, z;
};

/// Builds the model step by step. Lengths are in metres.
class SampleHouse {
 public:
  void build() {
    const auto project = createProject();
    const auto site = createSpatial<FcSite>("Meadow", {0, 0, 0}, nullptr);
    const auto building = createSpatial<FcBuilding>("House", {12, 7.5, 0}, site);
    const auto ground = createStorey("Ground floor", 0, building);
    const auto upper = createStorey("Upper floor", 2.8, building);
    const auto room = createSpatial<FcSpace>("0.1", {0.24, 0.24, 0}, ground);
    room->setLongName("Living room");
    aggregate(project, {site});
    aggregate(site, {building});
    aggregate(building, {ground, upper});
    aggregate(ground, {room});
    furnishGround(ground);
    furnishUpper(upper);
    const auto wallType = createWallType();
    describeWalls();
    describe(*wallType);
    measure(walls<FcWall>().front());
    classifyWalls();
    addThermalUnits(*project->UnitsInContext());
  }

  host::step::WriteResult write(const std::string& path) const {
    host::step::WriteOptions options;
    options.header.description = {"A house of two storeys without shapes"};
    options.header.name = "sample.ifc";
    options.header.timeStamp = "2025-01-01T12:00:00";  // left empty, it is the time of writing
    options.header.originatingSystem = "sample_model";
    options.numbers = m_numbers;
    return host::step::writeStepFile(*m_data, path, options);
  }

 private:
  /// A new entity, listed in the model. The numbers are those of the file: a program that doesn't
  /// give any has its entities numbered class by class.
  template <class T>
  std::shared_ptr<T> create() {
    auto entity = m_data->create<T>();
    m_numbers.push_back({m_numbers.size() + 1, entity});
    return entity;
  }

  /// The same for what has an identity. `Guid::generate()` is what a program would take here; these
  /// are counted so that every run gives the same file.
  template <class T>
  std::shared_ptr<T> createRoot() {
    auto root = create<T>();
    const std::array<std::uint8_t, 8> tail{0x8A, 0x31, 0x5C, 0x0E, 0x77, 0xD2, 0x46, 0x9B};
    root->setGuid(Guid(0x1D3F5A00 + ++m_rootCount, 0x6B2C, 0x4E91, tail));
    return root;
  }
  template <class T>
  std::shared_ptr<T> createRoot(const std::string& name) {
    auto root = createRoot<T>();
    root->setName(name);
    return root;
  }

  std::shared_ptr<FcProject> createProject() {
    auto project = createRoot<FcProject>("Sample house");
    project->setUnitsInContext(createUnits());
    project->setRepresentationContexts({createContext()});
    return project;
  }

  std::shared_ptr<FcUnitAssignment> createUnits() {
    auto units = create<FcUnitAssignment>();
    units->insertUnits(createUnit(FcUnitEnum::LENGTHUNIT, FcSIUnitName::METRE));
    units->insertUnits(createUnit(FcUnitEnum::AREAUNIT, FcSIUnitName::SQUARE_METRE));
    units->insertUnits(createUnit(FcUnitEnum::VOLUMEUNIT, FcSIUnitName::CUBIC_METRE));
    units->insertUnits(createUnit(FcUnitEnum::PLANEANGLEUNIT, FcSIUnitName::RADIAN));
    return units;
  }
  std::shared_ptr<FcNamedUnit> createUnit(FcUnitEnum type, FcSIUnitName name) {
    auto unit = create<FcSIUnit>();
    unit->setUnitType(type);
    unit->setName(name);
    return unit;
  }

  /// A unit that is made of others: watt per square metre and kelvin.
  void addThermalUnits(FcUnitAssignment& units) {
    auto transmittance = create<FcDerivedUnit>();
    transmittance->setUnitType(FcDerivedUnitEnum::THERMALTRANSMITTANCEUNIT);
    const auto add = [&](std::shared_ptr<FcNamedUnit> unit, int exponent) {
      auto element = create<FcDerivedUnitElement>();
      element->setUnit(std::move(unit));
      element->setExponent(exponent);
      transmittance->insertElements(element);
    };
    add(createUnit(FcUnitEnum::POWERUNIT, FcSIUnitName::WATT), 1);
    add(units.Units().front().NamedUnit(), -2);
    add(createUnit(FcUnitEnum::THERMODYNAMICTEMPERATUREUNIT, FcSIUnitName::KELVIN), -1);
    units.insertUnits(transmittance);
  }

  /// The frame of all shapes, and below it the context for bodies.
  std::shared_ptr<FcGeometricRepresentationContext> createContext() {
    auto model = create<FcGeometricRepresentationContext>();
    model->setContextType("Model");
    model->setCoordinateSpaceDimension(3);
    model->setPrecision(1e-5);
    model->setWorldCoordinateSystem(createFrame({0, 0, 0}));
    auto body = create<FcGeometricRepresentationSubContext>();
    body->setContextIdentifier("Body");
    body->setContextType("Model");
    body->setParentContext(model);
    body->setTargetView(FcGeometricProjectionEnum::MODEL_VIEW);
    return model;
  }

  std::shared_ptr<FcAxis2Placement3D> createFrame(const Position& origin) {
    auto point = create<FcCartesianPoint>();
    point->setCoordinates({origin.x, origin.y, origin.z});
    auto frame = create<FcAxis2Placement3D>();
    frame->setLocation(point);
    return frame;
  }
  /// A frame whose x axis points along (`x`, `y`, 0) and whose z axis points up.
  std::shared_ptr<FcAxis2Placement3D> createFrame(const Position& origin, double x, double y) {
    auto frame = createFrame(origin);
    auto along = create<FcDirection>();
    along->setDirectionRatios({x, y, 0.0});
    auto up = create<FcDirection>();
    up->setDirectionRatios({0.0, 0.0, 1.0});
    frame->setAxis(up);  // both axes or none
    frame->setRefDirection(along);
    return frame;
  }

  /// Places a product in the frame of another one, or in that of the model.
  void place(FcProduct& product, std::shared_ptr<FcAxis2Placement3D> frame,
             const std::shared_ptr<FcProduct>& in) {
    auto placement = create<FcLocalPlacement>();
    if (in) placement->setPlacementRelTo(in->ObjectPlacement());
    placement->setRelativePlacement(std::move(frame));
    product.setObjectPlacement(placement);
  }

  template <class T>
  std::shared_ptr<T> createSpatial(const std::string& name, const Position& origin,
                                   const std::shared_ptr<FcProduct>& in) {
    auto element = createRoot<T>(name);
    place(*element, createFrame(origin), in);
    element->setCompositionType(FcElementCompositionEnum::ELEMENT);
    return element;
  }
  std::shared_ptr<FcBuildingStorey> createStorey(const std::string& name, double elevation,
                                                 const std::shared_ptr<FcBuilding>& building) {
    auto storey = createSpatial<FcBuildingStorey>(name, {0, 0, elevation}, building);
    storey->setElevation(elevation);
    return storey;
  }

  void aggregate(const std::shared_ptr<FcObjectDefinition>& whole,
                 std::vector<std::shared_ptr<FcObjectDefinition>> parts) {
    auto relation = createRoot<FcRelAggregates>();
    relation->setRelatingObject(whole);
    relation->setRelatedObjects(std::move(parts));
  }
  void contain(const std::shared_ptr<FcSpatialElement>& structure,
               std::vector<std::shared_ptr<FcProduct>> elements) {
    auto relation = createRoot<FcRelContainedInSpatialStructure>();
    relation->setRelatingStructure(structure);
    relation->setRelatedElements(std::move(elements));
  }

  void furnishGround(const std::shared_ptr<FcBuildingStorey>& storey) {
    const auto slab = createSlab("Base slab", FcSlabTypeEnum::BASESLAB, storey);
    const auto south = createWall("South wall", createFrame({0, 0, 0}), storey);
    const auto east = createWall("East wall", createFrame({8, 0, 0}, 0, 1), storey);
    const auto north = createWall("North wall", createFrame({8, 6, 0}, -1, 0), storey);
    const auto west = createWall("West wall", createFrame({0, 6, 0}, 0, -1), storey);
    const auto door = createDoor(createOpening("Door opening", {1.2, 0, 0}, south));
    const auto window = createWindow(createOpening("Window opening", {4.5, 0, 0.9}, south));
    contain(storey, {slab, south, east, north, west, door, window});
  }
  void furnishUpper(const std::shared_ptr<FcBuildingStorey>& storey) {
    const auto slab = createSlab("Floor slab", FcSlabTypeEnum::FLOOR, storey);
    const auto south = createWall("South gable", createFrame({0, 0, 0}), storey);
    const auto north = createWall("North gable", createFrame({8, 6, 0}, -1, 0), storey);
    contain(storey, {slab, south, north});
  }

  std::shared_ptr<FcWall> createWall(const std::string& name,
                                     std::shared_ptr<FcAxis2Placement3D> frame,
                                     const std::shared_ptr<FcBuildingStorey>& storey) {
    auto wall = createRoot<FcWall>(name);
    place(*wall, std::move(frame), storey);
    wall->setPredefinedType(FcWallTypeEnum::SOLIDWALL);
    return wall;
  }
  std::shared_ptr<FcSlab> createSlab(const std::string& name, FcSlabTypeEnum type,
                                     const std::shared_ptr<FcBuildingStorey>& storey) {
    auto slab = createRoot<FcSlab>(name);
    place(*slab, createFrame({0, 0, -0.2}), storey);
    slab->setPredefinedType(type);
    return slab;
  }

  /// An opening cuts its wall, and may be filled by a door or a window.
  std::shared_ptr<FcOpeningElement> createOpening(const std::string& name, const Position& origin,
                                                  const std::shared_ptr<FcWall>& wall) {
    auto opening = createRoot<FcOpeningElement>(name);
    place(*opening, createFrame(origin), wall);
    opening->setPredefinedType(FcOpeningElementTypeEnum::OPENING);
    auto relation = createRoot<FcRelVoidsElement>();
    relation->setRelatingBuildingElement(wall);
    relation->setRelatedOpeningElement(opening);
    return opening;
  }
  void fill(const std::shared_ptr<FcOpeningElement>& opening,
            const std::shared_ptr<FcElement>& filling) {
    place(*filling, createFrame({0, 0, 0}), opening);
    auto relation = createRoot<FcRelFillsElement>();
    relation->setRelatingOpeningElement(opening);
    relation->setRelatedBuildingElement(filling);
  }
  std::shared_ptr<FcDoor> createDoor(const std::shared_ptr<FcOpeningElement>& opening) {
    auto door = createRoot<FcDoor>("Front door");
    fill(opening, door);
    door->setOverallHeight(2.1);
    door->setOverallWidth(1.0);
    door->setPredefinedType(FcDoorTypeEnum::DOOR);
    door->setOperationType(FcDoorTypeOperationEnum::SINGLE_SWING_LEFT);
    return door;
  }
  std::shared_ptr<FcWindow> createWindow(const std::shared_ptr<FcOpeningElement>& opening) {
    auto window = createRoot<FcWindow>("K\u00FCchenfenster");  // texts are UTF-8
    fill(opening, window);
    window->setOverallHeight(1.2);
    window->setOverallWidth(1.5);
    window->setPredefinedType(FcWindowTypeEnum::WINDOW);
    return window;
  }

  /// One type for all walls of the model.
  std::shared_ptr<FcWallType> createWallType() {
    auto type = createRoot<FcWallType>("Brick 240");
    type->setPredefinedType(FcWallTypeEnum::SOLIDWALL);
    auto relation = createRoot<FcRelDefinesByType>();
    relation->setRelatingType(type);
    relation->setRelatedObjects(walls<FcObject>());
    return type;
  }

  void describeWalls() {
    auto set = createRoot<FcPropertySet>("Pset_WallCommon");
    set->setHasProperties(
        {createProperty("IsExternal", FcBoolean(true)),
         createProperty("FireRating", FcLabel("F90")),
         createProperty("ThermalTransmittance", FcThermalTransmittanceMeasure(0.24))});
    auto relation = createRoot<FcRelDefinesByProperties>();
    relation->setRelatedObjects(walls<FcObjectDefinition>());
    relation->setRelatingPropertyDefinition(std::static_pointer_cast<FcPropertySetDefinition>(set));
  }
  /// A type holds its sets itself. What an occurrence says in a set of the same name comes first.
  void describe(FcWallType& type) {
    auto set = createRoot<FcPropertySet>("Pset_WallCommon");
    set->setHasProperties(
        {createProperty("LoadBearing", FcBoolean(true)),
         createProperty("ThermalTransmittance", FcThermalTransmittanceMeasure(0.28))});
    type.insertHasPropertySets(set);
  }
  std::shared_ptr<FcProperty> createProperty(const std::string& name, FcValue value) {
    auto property = create<FcPropertySingleValue>();
    property->setName(name);
    property->setNominalValue(std::move(value));
    return property;
  }

  /// What the wall measures, as quantities for those who only count.
  void measure(const std::shared_ptr<FcWall>& wall) {
    auto set = createRoot<FcElementQuantity>("Qto_WallBaseQuantities");
    auto length = create<FcQuantityLength>();
    length->setName("Length");
    length->setLengthValue(8.0);
    auto area = create<FcQuantityArea>();
    area->setName("GrossSideArea");
    area->setAreaValue(22.4);
    set->setQuantities({length, area});
    auto relation = createRoot<FcRelDefinesByProperties>();
    relation->setRelatedObjects({wall});
    relation->setRelatingPropertyDefinition(std::static_pointer_cast<FcPropertySetDefinition>(set));
  }

  /// The place of the walls in a classification that others read too.
  void classifyWalls() {
    auto system = create<FcClassification>();
    system->setName("DIN 276");
    auto code = create<FcClassificationReference>();
    code->setIdentification("331");
    code->setName("Load-bearing exterior walls");
    code->setReferencedSource(system);
    auto relation = createRoot<FcRelAssociatesClassification>();
    for (const auto& wall : walls<FcObjectDefinition>()) relation->insertRelatedObjects(wall);
    relation->setRelatingClassification(code);
  }

  /// All walls, as a list that an attribute takes. `m_data->entities<FcWall>()` finds them too.
  template <class T>
  std::vector<std::shared_ptr<T>> walls() const {
    std::vector<std::shared_ptr<T>> found;
    for (const host::step::NumberedEntity& instance : m_numbers)
      if (auto wall = fc::fcCast<FcWall>(instance.entity)) found.push_back(std::move(wall));
    return found;
  }

  std::shared_ptr<fc::Data> m_data = std::make_shared<fc::Data>();
  std::vector<host::step::NumberedEntity> m_numbers;
  std::uint32_t m_rootCount = 0;
};

}  // namespace

int main(int argc, char** argv) try {
  if (argc != 2) {
    std::fputs("usage: sample_model OUT.ifc\n", stderr);
    return 2;
  }
  SampleHouse house;
  house.build();
  const host::step::WriteResult written = house.write(argv[1]);
  if (written.failure.empty()) return 0;
  std::fprintf(stderr, "sample_model: can't write '%s': %s\n", argv[1], written.failure.c_str());
  return 2;
} catch (const std::exception& error) {
  std::fprintf(stderr, "sample_model: %s\n", error.what());
  return 2;
}
