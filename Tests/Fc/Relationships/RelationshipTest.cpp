#include <gmock/gmock.h>

#include "Fc/Core/Kernel/FcPropertySet.h"
#include "Fc/Core/Kernel/FcRelAggregates.h"
#include "Fc/Core/Kernel/FcRelAssignsToProduct.h"
#include "Fc/Core/Kernel/FcRelDeclares.h"
#include "Fc/Core/Kernel/FcRelDefinesByProperties.h"
#include "Fc/Core/Kernel/FcRelNests.h"
#include "Fc/Core/ProductExtension/FcBuildingStorey.h"
#include "Fc/Core/ProductExtension/FcRelContainedInSpatialStructure.h"
#include "Fc/Core/ProductExtension/FcRelReferencedInSpatialStructure.h"
#include "Fc/Core/ProductExtension/FcRelSpaceBoundary1stLevel.h"
#include "Fc/Core/ProductExtension/FcSpace.h"
#include "Fc/Core/ProductExtension/FcSystem.h"
#include "Fc/Resource/Actor/FcPerson.h"
#include "Fc/Resource/Actor/FcTelecomAddress.h"
#include "Fc/Resource/ExternalReference/FcClassification.h"
#include "Fc/Resource/ExternalReference/FcClassificationReference.h"
#include "Fc/Resource/Geometry/FcTrimmedCurve.h"
#include "Fc/Resource/Utility/FcTableRow.h"
#include "Fc/Shared/BuildingElements/FcWall.h"
#include "Fc/Shared/BuildingElements/FcWallType.h"
#include "Tests/Fc/Relationships/Sides.h"

namespace qor::fc {
namespace {

using namespace core::kernel;
using namespace core::productextension;
using namespace resource::actor;
using namespace resource::externalreference;
using resource::measure::FcValue;
using resource::utility::FcTableRow;
using namespace shared::buildingelements;
using test::holdersOf;
using testing::ElementsAre;
using testing::IsEmpty;

template <class T>
std::shared_ptr<T> make() {
  return std::make_shared<T>();
}

// The typed setter of a single forward attribute; `Value` is a reference or a select.
template <class Target, class Holder, class Value>
void expectInStep(void (Holder::*setter)(Value), const char* attribute, const char* inverse) {
  const auto holder = make<Holder>();
  const auto a = make<Target>(), b = make<Target>();
  const auto set = [&](Value value) { (holder.get()->*setter)(std::move(value)); };
  set(Value(a));
  set(Value(a));
  EXPECT_EQ(holder->getLocalValue(object::PropertyId(attribute)), test::valueOf(a));
  EXPECT_THAT(holdersOf(*a, inverse), ElementsAre(holder));
  set(Value(b));
  EXPECT_THAT(holdersOf(*a, inverse), IsEmpty());
  EXPECT_THAT(holdersOf(*b, inverse), ElementsAre(holder));
  set(Value());
  EXPECT_THAT(holdersOf(*b, inverse), IsEmpty());
  set(Value(b));
  EXPECT_THAT(holdersOf(*b, inverse), ElementsAre(holder));
}

TEST(SingleReference, KeepsBothSidesInStep) {
  using Boundary = FcRelSpaceBoundary1stLevel;
  expectInStep<FcBuildingStorey>(&FcRelAggregates::setRelatingObject, "RelatingObject",
                                 "IsDecomposedBy");
  expectInStep<Boundary>(&Boundary::setParentBoundary, "ParentBoundary", "InnerBoundaries");
  const auto boundary = make<Boundary>(), parent = make<Boundary>();
  boundary->setParentBoundary(parent);
  boundary->clearParentBoundary();
  EXPECT_EQ(boundary->ParentBoundary(), nullptr);
  EXPECT_TRUE(parent->InnerBoundaries().empty());
}

TEST(SelectReference, KeepsBothSidesInStepWithEachAlternative) {
  using Rel = FcRelAssignsToProduct;
  expectInStep<FcWall>(&Rel::setRelatingProduct, "RelatingProduct", "ReferencedBy");
  expectInStep<FcWallType>(&Rel::setRelatingProduct, "RelatingProduct", "ReferencedBy");

  const auto reference = make<FcClassificationReference>();
  const auto scheme = make<FcClassification>();
  reference->setReferencedSource(scheme);
  EXPECT_THAT(scheme->HasReferences().lock(), ElementsAre(reference));
  reference->setReferencedSource(make<FcClassificationReference>());
  EXPECT_TRUE(scheme->HasReferences().empty());
  reference->setReferencedSource(scheme);
  reference->clearReferencedSource();
  EXPECT_FALSE(reference->ReferencedSource().isSet());
  EXPECT_TRUE(scheme->HasReferences().empty());
}

TEST(SelectReference, IsUnlinkedWhenATextTakesItsPlace) {
  const auto select = make<FcRelDefinesByProperties>();
  const auto set = make<FcPropertySet>();
  for (const char* text : {"PropertySetDefinitionSet(1)", "PropertySetDefinition(1)"}) {
    select->setRelatingPropertyDefinition(set);
    ASSERT_THAT(set->DefinesOccurrence().lock(), ElementsAre(select));
    Assert::setEnabled(false);  // what the text says is no matter here
    EXPECT_FALSE(select->setAttributeFromString("RelatingPropertyDefinition", text));
    Assert::setEnabled(true);
    EXPECT_TRUE(set->DefinesOccurrence().empty()) << text;
  }
}

enum class Kind { set, list };

// The typed setters of a list; `add` inserts into a SET and pushes back to a LIST.
template <class Target, class Holder, class Element>
std::shared_ptr<Holder> expectInStep(Kind kind, void (Holder::*setter)(std::vector<Element>),
                                     void (Holder::*adder)(Element),
                                     void (Holder::*eraser)(const Element&), const char* attribute,
                                     const char* inverse) {
  const auto holder = make<Holder>();
  const auto a = make<Target>(), b = make<Target>(), c = make<Target>();
  const auto set = [&](std::vector<Element> list) { (holder.get()->*setter)(std::move(list)); };
  const auto add = [&](Element element) { (holder.get()->*adder)(std::move(element)); };
  const auto erase = [&](const Element& element) { (holder.get()->*eraser)(element); };
  const auto expectElements = [&](const test::Entities& expected) {
    EXPECT_EQ(holder->getLocalValue(object::PropertyId(attribute)), test::listOf(expected));
    for (const auto& target : {a, b, c}) {
      const bool named = std::ranges::count(expected, target) > 0;
      EXPECT_THAT(holdersOf(*target, inverse),
                  testing::ElementsAreArray(named ? test::Entities{holder} : test::Entities{}));
    }
  };

  add(Element(a));
  expectElements({a});
  add(Element(b));
  add(Element(a));
  expectElements(kind == Kind::set ? test::Entities{a, b} : test::Entities{a, b, a});
  set({Element(c), Element(), Element(a), Element(c)});
  expectElements({c, nullptr, a, c});
  add(Element());
  if (kind == Kind::set)
    expectElements({c, nullptr, a, c});
  else
    expectElements({c, nullptr, a, c, nullptr});
  erase(Element());
  expectElements({c, a, c});
  erase(Element(b));
  expectElements({c, a, c});
  erase(Element(c));
  expectElements({a});
  set(std::vector<Element>{Element(b)});
  expectElements({b});
  set({});
  expectElements({});
  add(Element(a));
  return holder;
}

TEST(ListOfReferences, KeepsBothSidesInStep) {
  using Set = FcRelAggregates;
  using List = FcRelNests;
  expectInStep<FcWall>(Kind::set, &Set::setRelatedObjects, &Set::insertRelatedObjects,
                       &Set::eraseRelatedObjects, "RelatedObjects", "Decomposes");
  expectInStep<FcWall>(Kind::list, &List::setRelatedObjects, &List::pushBackRelatedObjects,
                       &List::eraseRelatedObjects, "RelatedObjects", "Nests");
}

TEST(ListOfSelects, KeepsBothSidesInStepWithEachAlternative) {
  using Rel = FcRelDeclares;
  expectInStep<FcWall>(Kind::set, &Rel::setRelatedDefinitions, &Rel::insertRelatedDefinitions,
                       &Rel::eraseRelatedDefinitions, "RelatedDefinitions", "HasContext");
  expectInStep<FcPropertySet>(Kind::set, &Rel::setRelatedDefinitions,
                              &Rel::insertRelatedDefinitions, &Rel::eraseRelatedDefinitions,
                              "RelatedDefinitions", "HasContext");
}

TEST(OptionalList, IsPresentAfterAnInsertionAndUnlinksAllWhenCleared) {
  using Type = FcTypeObject;
  const auto type = expectInStep<FcPropertySet, Type, std::shared_ptr<FcPropertySetDefinition>>(
      Kind::set, &Type::setHasPropertySets, &Type::insertHasPropertySets,
      &Type::eraseHasPropertySets, "HasPropertySets", "DefinesType");
  const auto a = make<FcPropertySet>(), b = make<FcPropertySet>();
  type->setHasPropertySets({a, nullptr, b});
  type->clearHasPropertySets();
  EXPECT_FALSE(type->HasPropertySets());
  EXPECT_TRUE(a->DefinesType().empty() && b->DefinesType().empty());
  type->eraseHasPropertySets(a);
  EXPECT_FALSE(type->HasPropertySets()) << "erasing from an absent set leaves it absent";
  type->insertHasPropertySets(a);
  EXPECT_THAT(*type->HasPropertySets(), ElementsAre(a));

  const auto person = expectInStep<FcTelecomAddress, FcPerson, std::shared_ptr<FcAddress>>(
      Kind::list, &FcPerson::setAddresses, &FcPerson::pushBackAddresses, &FcPerson::eraseAddresses,
      "Addresses", "OfPerson");
  const auto address = make<FcTelecomAddress>();
  person->setAddresses({address, address});
  person->clearAddresses();
  EXPECT_FALSE(person->Addresses());
  EXPECT_TRUE(address->OfPerson().empty());
}

TEST(ListOfValues, LosesOnlyTheErasedValue) {
  FcTableRow row;
  const FcValue two(resource::measure::FcMeasureValue(resource::measure::FcLengthMeasure(2)));
  const FcValue three(resource::measure::FcMeasureValue(resource::measure::FcLengthMeasure(3)));
  row.setRowCells({two, three, two});
  row.eraseRowCells(row.RowCells()->front());
  ASSERT_EQ(row.RowCells()->size(), 1U);
  EXPECT_EQ(row.RowCells()->front().getLocalValue(), three.getLocalValue());

  resource::geometry::FcTrimmedCurve curve;
  for (const double parameter : {1.0, 2.0, 1.0})
    curve.insertTrim1(resource::measure::FcParameterValue(parameter));
  EXPECT_EQ(curve.Trim1().size(), 2U);
}

TEST(Erasing, WhatIsNoMemberResetsItsReferenceAllTheSame) {
  const auto mine = make<FcRelAggregates>(), foreign = make<FcRelAggregates>();
  const auto wall = make<FcWall>();
  mine->insertRelatedObjects(wall);
  foreign->eraseRelatedObjects(wall);
  EXPECT_THAT(mine->RelatedObjects(), ElementsAre(wall));
  EXPECT_EQ(wall->Decomposes().lock(), nullptr);
}

TEST(PropertyDefinition, IsNotMirroredInASetOfThemThoughItIsWalked) {
  const auto rel = make<FcRelDefinesByProperties>();
  const auto wall = make<FcWall>();
  const auto properties = make<FcPropertySet>();
  rel->insertRelatedObjects(wall);
  const FcPropertySetDefinitionSelect both(FcPropertySetDefinitionSet({properties, properties}));
  rel->setRelatingPropertyDefinition(both);
  EXPECT_TRUE(properties->DefinesOccurrence().empty());
  EXPECT_THAT(wall->IsDefinedBy().lock(), ElementsAre(rel));
  EXPECT_THAT(
      test::reached(*rel, false),
      ElementsAre("RelatedObjects", "RelatingPropertyDefinition", "RelatingPropertyDefinition"));

  EXPECT_TRUE(
      rel->setLocalValue(both.getLocalValue(), object::PropertyId("RelatingPropertyDefinition")));
  rel->updateInverseAttributes();
  EXPECT_TRUE(properties->DefinesOccurrence().empty());
  rel->setRelatingPropertyDefinition(std::shared_ptr<FcPropertySetDefinition>(properties));
  EXPECT_THAT(properties->DefinesOccurrence().lock(), ElementsAre(rel));
}

TEST(Containment, OfAProductThatKnowsNoneIsStoredAndNotMirrored) {
  const auto rel = make<FcRelContainedInSpatialStructure>();
  const auto space = make<FcSpace>();
  const auto wall = make<FcWall>();
  rel->setRelatedElements({space, wall});
  EXPECT_THAT(rel->RelatedElements(), ElementsAre(space, wall));
  EXPECT_THAT(test::reached(*space, true), IsEmpty());
  EXPECT_EQ(wall->ContainedInStructure().lock(), rel);
}

TEST(SpatialReference, OfASystemIsMirroredTwice) {
  const auto rel = make<FcRelReferencedInSpatialStructure>();
  const auto system = make<FcSystem>();
  const auto group = make<FcGroup>();
  rel->insertRelatedElements(std::shared_ptr<FcGroup>(system));
  rel->insertRelatedElements(group);
  EXPECT_THAT(system->ReferencedInStructures().lock(), ElementsAre(rel));
  EXPECT_THAT(system->ServicesFacilities().lock(), ElementsAre(rel));
  EXPECT_THAT(group->ReferencedInStructures().lock(), ElementsAre(rel));
  rel->eraseRelatedElements(std::shared_ptr<FcGroup>(system));
  EXPECT_THAT(test::reached(*system, true), IsEmpty());
}

TEST(UnownedHolder, IsRefusedAsSoonAsThereIsSomethingToLink) {
  FcRelAggregates rel;
  const auto wall = make<FcWall>();
  rel.setRelatingObject(nullptr);
  rel.setRelatedObjects({nullptr, nullptr});
  rel.updateInverseAttributes();
  EXPECT_THROW(rel.setRelatingObject(wall), std::bad_weak_ptr);
  EXPECT_THROW(rel.insertRelatedObjects(wall), std::bad_weak_ptr);
  EXPECT_THROW(rel.setLocalValue(test::listOf({wall}), object::PropertyId("RelatedObjects")),
               std::bad_weak_ptr);
  EXPECT_THROW(rel.updateInverseAttributes(), std::bad_weak_ptr);
  EXPECT_TRUE(wall->IsDecomposedBy().empty());
  EXPECT_EQ(wall->Decomposes().lock(), nullptr);
}

}  // namespace
}  // namespace qor::fc
