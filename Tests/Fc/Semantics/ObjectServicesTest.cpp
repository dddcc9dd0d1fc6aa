#include <gtest/gtest.h>

#include "Fc/Core/Kernel/FcGroup.h"
#include "Fc/Core/Kernel/FcRelAggregates.h"
#include "Fc/Core/Kernel/FcRelAssignsToGroup.h"
#include "Fc/Core/Kernel/FcRelAssociatesClassification.h"
#include "Fc/Core/Kernel/FcRelAssociatesDocument.h"
#include "Fc/Core/Kernel/FcRelAssociatesLibrary.h"
#include "Fc/Core/Kernel/FcRelDefinesByType.h"
#include "Fc/Core/Kernel/FcRelNests.h"
#include "Fc/Core/Kernel/FcTypeProduct.h"
#include "Fc/Resource/Actor/FcPerson.h"
#include "Fc/Resource/ExternalReference/FcClassification.h"
#include "Fc/Resource/ExternalReference/FcClassificationReference.h"
#include "Fc/Resource/ExternalReference/FcDocumentReference.h"
#include "Fc/Resource/ExternalReference/FcLibraryReference.h"
#include "Fc/Resource/Geometry/FcRepresentationMap.h"
#include "Fc/Resource/Representation/FcGeometricRepresentationSubContext.h"
#include "Fc/Resource/Representation/FcShapeRepresentation.h"
#include "Fc/Shared/BuildingElements/FcWall.h"
#include "Fc/Shared/BuildingElements/FcWallType.h"
#include "Qor/Classification/ClassificationInterface.h"
#include "Tests/Support/ExpectAsserts.h"
#include "Tests/Support/Make.h"

namespace qor::fc {
namespace {

using namespace std::chrono_literals;
using namespace core::kernel;
using resource::actor::FcPerson;
using namespace resource::externalreference;
using namespace resource::representation;
using namespace shared::buildingelements;
using test::make;

class ObjectServices : public testing::Test {
 protected:
  std::shared_ptr<FcWall> newWall() { return data->create<FcWall>(); }

  const std::shared_ptr<Data> data = std::make_shared<Data>();
  const std::shared_ptr<FcWall> wall = newWall();
};

TEST_F(ObjectServices, ConnectsPartsByTheFirstRelationship) {
  const auto first = wall->aggregatesConnect(*data, newWall());
  EXPECT_EQ(wall->decomposeConnect(*data, *newWall(),
                                   [](FcRelAggregates&) { ADD_FAILURE() << "it was there"; }),
            first);
  EXPECT_EQ(first->RelatedObjects().size(), 2U);
  EXPECT_EQ(first->RelatingObject(), wall);
  EXPECT_FALSE(first->GlobalId().isNull());
  EXPECT_EQ(first->RelatedObjects()[1]->Decomposes().lock(), first);

  int initialised = 0;
  const auto part = newWall();
  const auto nests = wall->nestConnect(*data, *part, [&](FcRelNests& made) {
    ++initialised;
    EXPECT_EQ(made.RelatingObject(), wall);
  });
  EXPECT_EQ(wall->nestConnect(*data, *part), nests);
  EXPECT_EQ(initialised, 1);
  EXPECT_EQ(nests->RelatedObjects().size(), 2U);

  const auto group = data->create<FcGroup>();
  const auto grouped = group->isGroupedByConnect(*data, *wall);
  EXPECT_EQ(group->isGroupedByConnect(*data, *wall), grouped);
  EXPECT_EQ(grouped->RelatedObjects().size(), 1U);
  EXPECT_EQ(grouped->RelatingGroup(), group);

  FcWall loose;  // no shared pointer holds it
  EXPECT_THROW(wall->decomposeConnect(*data, loose), std::bad_weak_ptr);
  EXPECT_THROW(loose.nestConnect(*data, *wall), std::bad_weak_ptr);
}

TEST_F(ObjectServices, TypeManyOccurrencesByOneRelationship) {
  const Guid guid = Guid::generate();
  int initialised = 0;
  const auto initialise = [&](FcTypeObject& made) {
    ++initialised;
    EXPECT_TRUE(data->hasEntity(made));
  };
  const auto type = wall->typeSet(*data, StringHash::of("IfcWallType"), guid, initialise);
  ASSERT_NE(type, nullptr);
  EXPECT_EQ(type->GlobalId(), guid);
  const auto second = newWall();
  EXPECT_EQ(second->typeSet(*data, StringHash::of("IfcWallType"), guid, initialise), type);
  EXPECT_EQ(second->typeSet(*data, guid, {}), type);
  EXPECT_EQ(initialised, 1);
  EXPECT_EQ(data->entities<FcWallType>().size(), 1U);
  ASSERT_EQ(data->entities<FcRelDefinesByType>().size(), 1U);
  EXPECT_EQ(type->Types().lock()->RelatedObjects().size(), 2U);
  EXPECT_EQ(second->getTypeObject(), type);
  EXPECT_EQ(second->typeBaseGet(), type);
  EXPECT_EQ(core::kernel::FcObject::getSharedPtrFromTypeObject(*type), type);
  EXPECT_EQ(newWall()->getTypeObject(), nullptr);
}

TEST_F(ObjectServices, RefuseATypeThatWasntMadeAsAsked) {
  const Guid guid = Guid::generate();
  const std::size_t size = data->size();
  const auto ofAnotherGuid = std::make_shared<FcWallType>();
  const test::ExpectAsserts expected(
      {"Type not created correctly", "Type not created correctly", "Type not created correctly"});
  EXPECT_EQ(wall->typeSet(*data, guid, [&] { return ofAnotherGuid; }), nullptr);
  EXPECT_EQ(wall->typeSet(*data, guid, [] { return nullptr; }), nullptr);
  EXPECT_EQ(wall->typeSet(*data, StringHash::of("IfcWall"), guid), nullptr);
  EXPECT_EQ(data->size(), size);
  EXPECT_THROW(wall->typeSet(*data, guid, {}), std::bad_function_call);

  newWall()->setGlobalId(guid);  // the GUID of something else is free for a type
  const auto type = std::make_shared<FcWallType>();
  type->setGlobalId(guid);
  EXPECT_EQ(wall->typeSet(*data, guid, [&] { return type; }), type);
  EXPECT_TRUE(data->hasEntity(*type));
}

TEST_F(ObjectServices, TellThePredefinedTypeOfTheTypeWhereThereIsNone) {
  const auto type = data->create<FcWallType>();
  EXPECT_EQ(wall->predefinedTypeDerived(), "");
  type->IsTypedByConnect(*data, *wall);
  type->setPredefinedTypeFromString("PARAPET");
  EXPECT_EQ(wall->predefinedTypeAsString(), "");
  EXPECT_EQ(wall->predefinedTypeDerived(), "PARAPET");
  EXPECT_EQ(wall->userDefinedTypeDerived(), std::nullopt);
  type->setPredefinedTypeFromString("Hedge");
  EXPECT_EQ(type->predefinedTypeAsString(), "USERDEFINED");
  EXPECT_EQ(type->ElementType(), "Hedge");
  EXPECT_EQ(wall->userDefinedTypeDerived(), "Hedge");
  wall->setPredefinedTypeFromString("Fence");
  EXPECT_EQ(wall->ObjectType(), "Fence");
  EXPECT_EQ(wall->predefinedTypeDerived(), "USERDEFINED");
  EXPECT_EQ(wall->userDefinedTypeDerived(), "Fence");
  wall->setPredefinedTypeFromString("SOLIDWALL");
  EXPECT_EQ(wall->predefinedTypeDerived(), "SOLIDWALL");
  EXPECT_EQ(wall->userDefinedTypeDerived(), "Hedge");
  EXPECT_EQ(data->create<FcGroup>()->predefinedTypeDerived(), "");
  EXPECT_EQ(type->classNameWithoutType(), "IfcWall");
  EXPECT_EQ(data->create<FcTypeProduct>()->classNameWithoutType(), "IfcProduct");
}

TEST_F(ObjectServices, KnowTheDimensionOfATypesShapes) {
  using Context = FcGeometricRepresentationContext;
  using SubContext = FcGeometricRepresentationSubContext;
  using resource::geometry::FcRepresentationMap;
  const auto model = make<Context>({{"CoordinateSpaceDimension", 3}});
  const auto plan = make<Context>({{"CoordinateSpaceDimension", 2}});
  const auto body = make<SubContext>({{"ParentContext", model}});
  const struct {
    std::shared_ptr<Context> context;
    bool has2d, has3d;
  } cases[] = {{model, false, true},
               {body, false, true},
               {plan, true, false},
               {make<SubContext>(), false, false},
               {nullptr, false, false}};
  for (const auto& [context, has2d, has3d] : cases) {
    const auto type = data->create<FcWallType>();
    EXPECT_FALSE(type->has2dGeometricContext());
    const auto shape = make<FcShapeRepresentation>();
    shape->setContextOfItems(context);
    type->setRepresentationMaps(std::vector{
        make<FcRepresentationMap>(), make<FcRepresentationMap>({{"MappedRepresentation", shape}})});
    EXPECT_EQ(type->has2dGeometricContext(), has2d);
    EXPECT_EQ(type->has3dGeometricContext(), has3d);
    EXPECT_EQ(type->getRepresentationContexts([](const auto&) { return true; }), context);
  }
}

// A system that knows its codes by their first letter.
class TableSystem : public classification::ClassificationInterface {
 public:
  explicit TableSystem(std::string name) : m_name(std::move(name)) {}
  std::string getName() const override { return m_name; }
  std::string getDescription() const override { return ""; }
  std::string getEditionDate() const override { return "2024-05-31"; }
  std::string getReferenceName(const std::string& code) const override { return "name " + code; }
  std::string getReferenceDescription(const std::string&) const override { return ""; }
  std::string getReferenceLocation(const std::string& code) const override { return "at/" + code; }
  std::string getReferenceSort(const std::string&) const override { return "1"; }

 private:
  std::string m_name;
};

TEST_F(ObjectServices, ClassifyUnderAChainOfCodesThatTheModelSharesAmongObjects) {
  const auto system = std::make_shared<TableSystem>("Table");
  const auto other = newWall();
  const auto made = wall->classify(system, {"A", "B"});
  EXPECT_EQ(other->classify(system, {"A", "C"}), made);
  EXPECT_EQ(wall->classify(system, {"A", "B"}), made);
  EXPECT_EQ(made->Name(), "Table");
  EXPECT_EQ(made->Description(), std::nullopt);
  EXPECT_EQ(made->getEditionDate()->date, 2024y / 5 / 31);
  EXPECT_EQ(data->entities<FcClassification>().size(), 1U);
  EXPECT_EQ(data->entities<FcClassificationReference>().size(), 3U);
  EXPECT_EQ(data->entities<FcRelAssociatesClassification>().size(), 2U);

  const auto b = wall->getClassification(*system), c = other->getClassification(*system);
  EXPECT_EQ(b->Identification(), "B");
  EXPECT_EQ(b->Name(), "name B");
  EXPECT_EQ(b->Location(), "at/B");
  EXPECT_EQ(c->Identification(), "C");
  const auto a = b->ReferencedSource().ClassificationReference();
  EXPECT_EQ(c->ReferencedSource().ClassificationReference(), a);
  EXPECT_EQ(a->ReferencedSource().Classification(), made);
  EXPECT_EQ(b->getClassificationName(), "Table");
  EXPECT_EQ(b->ClassificationRefForObjects().lockFirst()->RelatedObjects().size(), 1U);

  wall->removeClassification(TableSystem("Other"));
  EXPECT_NE(wall->getClassification(*system), nullptr);
  wall->removeClassification(*system);
  EXPECT_EQ(wall->getClassification(*system), nullptr);
  EXPECT_EQ(other->getClassification(*system), c);
  EXPECT_TRUE(data->hasEntity(*b));
}

TEST_F(ObjectServices, ReportWhatClassifyingLacks) {
  const char* const noData = "Cannot set external reference without FcData";
  const test::ExpectAsserts expected({"Need classification interface", noData, noData});
  const auto system = std::make_shared<TableSystem>("Table");
  const auto loose = std::make_shared<FcWall>();
  EXPECT_EQ(loose->classify(nullptr, {"A"}), nullptr);
  EXPECT_EQ(loose->classify(system, {"A"}), nullptr);
  EXPECT_EQ(loose->createExternalReference<FcDocumentReference>({}, {}, "D"), nullptr);
  EXPECT_NE(wall->classify(system, {}), nullptr) << "the classification alone";
  EXPECT_EQ(wall->getClassification(*system), nullptr);
}

TEST_F(ObjectServices, ClimbNoCircleOfReferences) {
  const auto system = std::make_shared<TableSystem>("Table");
  wall->classify(system, {"A", "B", "A", "A"});
  EXPECT_EQ(wall->getClassification(*system), nullptr);
  EXPECT_EQ(data->create<FcClassificationReference>()->getClassificationName(), "");
  const auto reference = data->create<FcClassificationReference>();
  const auto made = reference->createClassification(*data, "New");
  EXPECT_EQ(reference->getClassificationName(), "New");
  EXPECT_TRUE(data->hasEntity(*made));
  for (const std::shared_ptr<FcClassificationReference> one :
       data->entities<FcClassificationReference>())
    one->clearReferencedSource();
}

TEST_F(ObjectServices, ReferToSomethingOutsideByANewRelationshipEachTime) {
  for (int i = 0; i < 2; ++i) {
    const auto document =
        wall->createExternalReference<FcDocumentReference>("plans/1.pdf", std::nullopt, "Plan");
    EXPECT_EQ(document->Location(), "plans/1.pdf");
    EXPECT_EQ(document->Identification(), std::nullopt);
    EXPECT_EQ(document->Name(), "Plan");
    EXPECT_EQ(document->DocumentRefForObjects().size(), 1U);
  }
  const auto library = wall->createExternalReference<FcLibraryReference>({}, "id", "L");
  EXPECT_EQ(library->LibraryRefForObjects().size(), 1U);
  const auto code = wall->createExternalReference<FcClassificationReference>({}, "id", "C");
  EXPECT_EQ(code->ClassificationRefForObjects().lockFirst()->RelatedObjects().size(), 1U);
  EXPECT_EQ(wall->HasAssociations().size(), 4U);
}

TEST(Classification, GivesItsEditionDateOnlyWhereThatIsOne) {
  const auto classification = std::make_shared<FcClassification>();
  EXPECT_EQ(classification->getEditionDate(), std::nullopt);
  classification->setEditionDate(DateTime{.date = 2020y / 2 / 29});
  EXPECT_EQ(classification->EditionDate(), "2020-02-29");
  EXPECT_EQ(classification->getEditionDate(), (DateTime{.date = 2020y / 2 / 29}));
  classification->setEditionDate(std::string("spring 2020"));
  EXPECT_EQ(classification->getEditionDate(), std::nullopt);
  EXPECT_EQ(classification->EditionDate(), "spring 2020");
}

TEST(Person, HasAFullNameOfItsParts) {
  const auto person = std::make_shared<FcPerson>();
  EXPECT_EQ(person->getFullName(true), "");
  person->setFamilyName("Meyer");
  EXPECT_EQ(person->getFullName(true), " Meyer");
  person->setGivenName("Anna");
  person->setMiddleNames(std::vector<std::string>{"B.", "C."});
  EXPECT_EQ(person->getFullName(false), "Anna Meyer");
  EXPECT_EQ(person->getFullName(true), "Anna B. C. Meyer");
}

}  // namespace
}  // namespace qor::fc
