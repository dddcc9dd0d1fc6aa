// A first program on the library: a house of two storeys, made from nothing and written as a STEP
// file.
//
//     sample_model out.ifc
//
// Read `SampleHouse::build` first. The road is the same for every model:
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
//   6. What is to be seen gets a shape: items of geometry in a representation, in the context that
//      says what for.
//
// `ModelBuilder` holds 1, 2, 4 and 5, `ShapeBuilder` holds 6. `WallOpenings` are windows and doors,
// `BalconySteel` are columns and railing, `Garden` is what the house stands in, `Facts` are units,
// properties, quantities, materials and classification.
//
// The order below, project first, is that in which a reader of the file looks for things; the
// library doesn't ask for it.

#include <cstdio>
#include <exception>
#include <string>

#include "Examples/BalconySteel.h"
#include "Examples/Facts.h"
#include "Examples/Garden.h"
#include "Examples/ModelBuilder.h"
#include "Examples/ShapeBuilder.h"
#include "Examples/WallOpenings.h"
#include "Fc/Core/Kernel/FcProject.h"
#include "Fc/Core/ProductExtension/FcBuilding.h"
#include "Fc/Core/ProductExtension/FcBuildingStorey.h"
#include "Fc/Core/ProductExtension/FcGeographicElement.h"
#include "Fc/Core/ProductExtension/FcSite.h"
#include "Fc/Core/ProductExtension/FcSpace.h"
#include "Fc/Shared/BuildingElements/FcChimney.h"
#include "Fc/Shared/BuildingElements/FcColumn.h"
#include "Fc/Shared/BuildingElements/FcRailing.h"
#include "Fc/Shared/BuildingElements/FcRoof.h"
#include "Fc/Shared/BuildingElements/FcSlab.h"
#include "Fc/Shared/BuildingElements/FcStair.h"
#include "Fc/Shared/BuildingElements/FcWall.h"
#include "Fc/Shared/BuildingElements/FcWallType.h"

namespace sample {
namespace {

// The house stands on [0, houseLength] by [0, houseWidth], its ridge along Y. All in metres.
constexpr double houseLength = 8;
constexpr double houseWidth = 6;
constexpr double storeyHeight = 2.8;
constexpr double wallThickness = 0.24;
constexpr double slabThickness = 0.2;

// The roof rises 3 on 4: cosine and sine of its pitch are 0.8 and 0.6.
constexpr double kneeHeight = 1.2;  // of the outer faces of the walls below the eaves
constexpr double rise = 0.75;
constexpr double cosine = 0.8;
constexpr double sine = 0.6;
constexpr double ridgeHeight = kneeHeight + rise * houseLength / 2;
constexpr double roofHeight = 0.25;  // 0.2 thick, measured upright
constexpr double eaves = 0.5;        // how far the roof reaches beyond the walls
constexpr double verge = 0.35;

/// The frame of a wall: X along its outer face, Y into the house.
math::Matrix wallFrame(const math::Point3d& origin, const math::Vector3d& along) {
  return {origin, along, math::Vector3d(0, 0, 1)};
}

/// A plane of the roof in the frame of a wall: through `point`, looking along `normal`.
math::Matrix roofPlane(const math::Point3d& point, const math::Vector3d& normal) {
  const math::Vector3d level =
      normal.x == 0 ? math::Vector3d(1, 0, 0) : math::Vector3d(normal.z, 0, -normal.x);
  return {point, level, normal};
}

/// Upright across the house: X stays, Y points up, Z to the front.
math::Matrix crossSection(double y) {
  return {math::Point3d(0, y, 0), math::Vector3d(1, 0, 0), math::Vector3d(0, -1, 0)};
}

using Storey = std::shared_ptr<FcBuildingStorey>;
using Wall = std::shared_ptr<FcWall>;
using Slab = std::shared_ptr<FcSlab>;

/// Builds the model step by step.
class SampleHouse {
 public:
  void build() {
    const auto site = createSite();
    const auto building = createSpatial<FcBuilding>("House", at(7, 7, 0), site);
    const auto ground = createStorey("Ground floor", 0, building);
    const auto upper = createStorey("Upper floor", storeyHeight, building);
    const auto room = createLivingRoom(ground);
    m_model.aggregate(m_project, {site});
    m_model.aggregate(site, {building});
    m_model.aggregate(building, {ground, upper});
    m_model.aggregate(ground, {room});
    buildGround(ground);
    buildUpper(upper);
    plantTrees(site);
    addFacts();
  }

  host::step::WriteResult write(const std::string& path) const { return m_model.write(path); }

 private:
  static std::shared_ptr<FcProject> createProject(ModelBuilder& model, Facts& facts) {
    auto project = model.createRoot<FcProject>("Sample house");
    project->setUnitsInContext(facts.createUnits());
    return project;
  }

  // Spatial structure

  template <class T>
  std::shared_ptr<T> createSpatial(const std::string& name, const math::Matrix& frame,
                                   const std::shared_ptr<FcProduct>& in) {
    auto element = m_model.createRoot<T>(name);
    m_model.place(*element, frame, in);
    element->setCompositionType(FcElementCompositionEnum::ELEMENT);
    return element;
  }
  std::shared_ptr<FcSite> createSite() {
    auto site = createSpatial<FcSite>("Meadow", {}, nullptr);
    m_shapes.showBody(*site, RepresentationType::Tessellation,
                      {m_shapes.painted(substance::grass, createMeadow(m_model))});
    // The model's Y axis looks 16 degrees east of north.
    m_project->setTrueNorth(m_model.data(), math::Vector2d(-0.28, 0.96));
    return site;
  }
  Storey createStorey(const std::string& name, double elevation,
                      const std::shared_ptr<FcBuilding>& building) {
    auto storey = createSpatial<FcBuildingStorey>(name, at(0, 0, elevation), building);
    storey->setElevation(elevation);
    return storey;
  }
  std::shared_ptr<FcSpace> createLivingRoom(const Storey& storey) {
    auto room = createSpatial<FcSpace>("0.1", at(wallThickness, wallThickness, 0), storey);
    room->setLongName("Living room");
    m_shapes.showBody(*room, RepresentationType::SweptSolid,
                      {m_shapes.box({0, 0, 0}, houseLength - 2 * wallThickness,
                                    houseWidth - 2 * wallThickness, storeyHeight - slabThickness)});
    return room;
  }

  // Storeys

  void buildGround(const Storey& storey) {
    const auto slab = createBaseSlab(storey);
    const auto south = createWall("South wall", southFrame(), houseLength, storeyHeight, storey);
    const auto east = createWall("East wall", eastFrame(), houseWidth, storeyHeight, storey);
    const auto north = createWall("North wall", northFrame(), houseLength, storeyHeight, storey);
    const auto west = createWall("West wall", westFrame(), houseWidth, storeyHeight, storey);
    m_model.contain(storey, {slab, south, east, north, west, createDoorstep(storey),
                             m_openings.addFrontDoor(south, 1.2),
                             m_openings.addWindow("K\u00FCchenfenster", south, 4.75, 0.9),  // UTF-8
                             m_openings.addWindow("East window 1", east, 0.9, 0.9),
                             m_openings.addWindow("East window 2", east, 3.6, 0.9),
                             m_openings.addWindow("North window", north, 5.3, 0.9),
                             m_openings.addWindow("West window", west, 3.6, 0.9),
                             m_steel.createColumn("West column", {4.15, -1.45, -0.3}, storey),
                             m_steel.createColumn("East column", {6.85, -1.45, -0.3}, storey),
                             createStair(storey), createChimney(storey)});
  }
  void buildUpper(const Storey& storey) {
    const auto slab = createFloorSlab(storey);
    const auto south = createGable("South gable", southFrame(), storey);
    const auto east = createKneeWall("East knee wall", eastFrame(), storey);
    const auto north = createGable("North gable", northFrame(), storey);
    const auto west = createKneeWall("West knee wall", westFrame(), storey);
    m_model.contain(
        storey,
        {slab, south, east, north, west, createRoof(storey), createBalcony(storey),
         m_steel.createRailing(storey), m_openings.addWindow("South window", south, 1.6, 0.9),
         m_openings.addBalconyDoor(south, 5),
         m_openings.addRoundWindow("South round window", south, houseLength / 2, 3.1),
         m_openings.addWindow("Gable window", north, 3.25, 0.9),
         m_openings.addRoundWindow("North round window", north, houseLength / 2, 3.1)});
  }

  // Walls: outlines mitred at the corners, so that the bodies meet and don't overlap.

  static math::Matrix southFrame() { return wallFrame({0, 0, 0}, {1, 0, 0}); }
  static math::Matrix eastFrame() { return wallFrame({houseLength, 0, 0}, {0, 1, 0}); }
  static math::Matrix northFrame() { return wallFrame({houseLength, houseWidth, 0}, {-1, 0, 0}); }
  static math::Matrix westFrame() { return wallFrame({0, houseWidth, 0}, {0, -1, 0}); }

  Item mitredWall(double along, double height) {
    return m_shapes.extrude(m_shapes.polygon({{0, 0},
                                              {along, 0},
                                              {along - wallThickness, wallThickness},
                                              {wallThickness, wallThickness}}),
                            height);
  }
  Wall createWall(const std::string& name, const math::Matrix& frame, double along,
                  RepresentationType type, const Item& body, const Storey& storey) {
    auto wall = m_model.createRoot<FcWall>(name);
    m_model.place(*wall, frame, storey);
    wall->setPredefinedType(FcWallTypeEnum::SOLIDWALL);
    constexpr double middle = wallThickness / 2;  // axes meet in the corners
    m_shapes.showAxis(*wall, {middle, middle}, {along - middle, middle});
    m_shapes.showBody(*wall, type, {m_shapes.painted(substance::brick, body)});
    return wall;
  }
  Wall createWall(const std::string& name, const math::Matrix& frame, double along, double height,
                  const Storey& storey) {
    return createWall(name, frame, along, RepresentationType::SweptSolid, mitredWall(along, height),
                      storey);
  }
  /// Cut off below both pitches of the roof.
  Wall createGable(const std::string& name, const math::Matrix& frame, const Storey& storey) {
    const Item whole = mitredWall(houseLength, ridgeHeight + 0.5);
    const Item left =
        m_shapes.cutOffAbove(whole, roofPlane({0, 0, kneeHeight}, {-sine, 0, cosine}));
    const Item both =
        m_shapes.cutOffAbove(left, roofPlane({houseLength, 0, kneeHeight}, {sine, 0, cosine}));
    return createWall(name, frame, houseLength, RepresentationType::Clipping, both, storey);
  }
  /// Its top slopes with the roof.
  Wall createKneeWall(const std::string& name, const math::Matrix& frame, const Storey& storey) {
    const Item body = m_shapes.cutOffAbove(mitredWall(houseWidth, kneeHeight + 0.5),
                                           roofPlane({0, 0, kneeHeight}, {0, -sine, cosine}));
    return createWall(name, frame, houseWidth, RepresentationType::Clipping, body, storey);
  }

  // Slabs, with their tops at the height of the floor

  Slab createSlab(const std::string& name, FcSlabTypeEnum type, const Item& body,
                  const Storey& storey) {
    auto slab = m_model.createRoot<FcSlab>(name);
    m_model.place(*slab, at(0, 0, -slabThickness), storey);
    slab->setPredefinedType(type);
    m_shapes.showBody(*slab, RepresentationType::SweptSolid,
                      {m_shapes.painted(substance::concrete, body)});
    return slab;
  }
  Slab createBaseSlab(const Storey& storey) {
    return createSlab("Base slab", FcSlabTypeEnum::BASESLAB,
                      m_shapes.box({0, 0, 0}, houseLength, houseWidth, slabThickness), storey);
  }
  Slab createDoorstep(const Storey& storey) {
    return createSlab("Doorstep", FcSlabTypeEnum::LANDING,
                      m_shapes.box({0.9, -1, 0}, 1.6, 1, slabThickness - 0.02), storey);
  }
  /// Between the walls, with openings for stair and chimney.
  Slab createFloorSlab(const Storey& storey) {
    const double x = houseLength - wallThickness, y = houseWidth - wallThickness;
    const auto outline = m_shapes.polygon(
        {{wallThickness, wallThickness}, {x, wallThickness}, {x, y}, {wallThickness, y}});
    const auto slab = createSlab("Floor slab", FcSlabTypeEnum::FLOOR,
                                 m_shapes.extrude(outline, slabThickness), storey);
    m_openings.cut(slab, "Stairwell", at(2.5, 4.7, 0),
                   m_shapes.box({0, 0, -0.1}, 3.8, 1.06, slabThickness + 0.2));
    m_openings.cut(slab, "Chimney passage", at(5.2, 3.6, 0),
                   m_shapes.box({0, 0, -0.1}, 0.6, 0.6, slabThickness + 0.2));
    return slab;
  }
  Slab createBalcony(const Storey& storey) {
    return createSlab("Balcony", FcSlabTypeEnum::FLOOR,
                      m_shapes.box({4, -1.6, 0}, 3, 1.6, slabThickness), storey);
  }

  // Roof: two slabs that make up a whole, which has no shape of its own

  std::shared_ptr<FcRoof> createRoof(const Storey& storey) {
    auto roof = m_model.createRoot<FcRoof>("Roof");
    m_model.place(*roof, {}, storey);
    roof->setPredefinedType(FcRoofTypeEnum::GABLE_ROOF);
    const double low = kneeHeight - rise * eaves, high = ridgeHeight, middle = houseLength / 2;
    const auto west = createPitch(
        "West pitch",
        {{-eaves, low}, {middle, high}, {middle, high + roofHeight}, {-eaves, low + roofHeight}},
        roof);
    const auto east = createPitch("East pitch",
                                  {{middle, high},
                                   {houseLength + eaves, low},
                                   {houseLength + eaves, low + roofHeight},
                                   {middle, high + roofHeight}},
                                  roof);
    m_openings.cut(east, "Chimney hole", at(5.2, 3.6, 0), m_shapes.box({0, 0, 0}, 0.6, 0.6, 5));
    m_model.aggregate(roof, {west, east});
    return roof;
  }
  Slab createPitch(const std::string& name, const std::vector<math::Point2d>& section,
                   const std::shared_ptr<FcRoof>& roof) {
    auto pitch = m_model.createRoot<FcSlab>(name);
    m_model.place(*pitch, {}, roof);
    pitch->setPredefinedType(FcSlabTypeEnum::ROOF);
    const Item body = m_shapes.extrude(m_shapes.polygon(section), houseWidth + 2 * verge,
                                       crossSection(houseWidth + verge));
    m_shapes.showBody(*pitch, RepresentationType::SweptSolid,
                      {m_shapes.painted(substance::slate, body)});
    return pitch;
  }

  // What stands in and before the house

  std::shared_ptr<FcStair> createStair(const Storey& storey) {
    constexpr int risers = 16;
    constexpr double tread = 0.24, riser = storeyHeight / risers;
    std::vector<math::Point2d> steps{{0, 0}};
    for (int i = 0; i < risers; ++i) {
      steps.emplace_back(i * tread, (i + 1) * riser);
      steps.emplace_back((i + 1) * tread, (i + 1) * riser);
    }
    steps.emplace_back(risers * tread, (risers - 1) * riser);  // the flight is as thick as a step
    steps.emplace_back(2 * tread, 0);
    auto stair = m_model.createRoot<FcStair>("Stair");
    m_model.place(*stair, at(2.4, 0, 0), storey);
    stair->setPredefinedType(FcStairTypeEnum::STRAIGHT_RUN_STAIR);
    const Item body =
        m_shapes.extrude(m_shapes.polygon(steps), 1, crossSection(houseWidth - wallThickness));
    m_shapes.showBody(*stair, RepresentationType::SweptSolid,
                      {m_shapes.painted(substance::oak, body)});
    return stair;
  }
  std::shared_ptr<FcChimney> createChimney(const Storey& storey) {
    auto chimney = m_model.createRoot<FcChimney>("Chimney");
    m_model.place(*chimney, at(5.5, 3.9, 0), storey);
    const Item shaft = m_shapes.extrude(m_shapes.hollowRectangle(0.6, 0.6, 0.15), 8);
    m_shapes.showBody(*chimney, RepresentationType::SweptSolid,
                      {m_shapes.painted(substance::brick, shaft)});
    return chimney;
  }

  void plantTrees(const std::shared_ptr<FcSite>& site) {
    const auto type = createAppleTree(m_model, m_shapes);
    std::vector<std::shared_ptr<FcProduct>> trees;
    for (const auto& foot :
         {math::Point3d(3.5, 5, -0.2), math::Point3d(19, 13.5, 0.2), math::Point3d(4, 15, 0.1)}) {
      auto tree =
          m_model.createRoot<FcGeographicElement>("Tree " + std::to_string(trees.size() + 1));
      m_model.place(*tree, at(foot.x, foot.y, foot.z), site);
      m_model.setType(*tree, *type);
      m_shapes.showBodyOfType(*tree, *type);
      trees.push_back(tree);
    }
    m_model.contain(site, std::move(trees));
  }

  // What can't be seen

  void addFacts() {
    auto type = m_model.createRoot<FcWallType>("Brick 240");
    type->setPredefinedType(FcWallTypeEnum::SOLIDWALL);
    for (const auto& wall : m_model.all<FcWall>()) m_model.setType(*wall, *type);
    m_facts.describeWalls();
    m_facts.describe(*type);
    m_facts.measure(m_model.all<FcWall>().front(), houseLength, storeyHeight);
    m_facts.classifyWalls();
    m_facts.setMaterial<FcWall>(substance::brick.name);
    m_facts.setMaterial<FcColumn>(substance::steel.name);
    m_facts.setMaterial<FcRailing>(substance::steel.name);
  }

  ModelBuilder m_model;
  Facts m_facts{m_model};
  std::shared_ptr<FcProject> m_project = createProject(m_model, m_facts);
  ShapeBuilder m_shapes{m_model, *m_project};
  WallOpenings m_openings{m_model, m_shapes};
  BalconySteel m_steel{m_model, m_shapes};
};

}  // namespace
}  // namespace sample

int main(int argc, char** argv) try {
  if (argc != 2) {
    std::fputs("usage: sample_model OUT.ifc\n", stderr);
    return 2;
  }
  sample::SampleHouse house;
  house.build();
  const qor::host::step::WriteResult written = house.write(argv[1]);
  if (written.failure.empty()) return 0;
  std::fprintf(stderr, "sample_model: can't write '%s': %s\n", argv[1], written.failure.c_str());
  return 2;
} catch (const std::exception& error) {
  std::fprintf(stderr, "sample_model: %s\n", error.what());
  return 2;
}
