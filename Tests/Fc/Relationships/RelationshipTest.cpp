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

// The typed setters of a single forward attribute; `Value` is a reference or a select.
template <class Holder, class Value>
struct SingleSetters {
  void (Holder::*set)(Value);
  const char* attribute;
  const char* inverse;
};

template <class Target, class Holder, class Value>
std::shared_ptr<Holder> expectInStep(const SingleSetters<Holder, Value>& setters) {
  const auto holder = make<Holder>();
  const auto a = make<Target>(), b = make<Target>();
  const Value toA(a), toB(b);
  (holder.get()->*setters.set)(toA);
  (holder.get()->*setters.set)(toA);
  EXPECT_EQ(holder->getLocalValue(object::PropertyId(setters.attribute)), test::valueOf(a));
  EXPECT_THAT(holdersOf(*a, setters.inverse), ElementsAre(holder));
  (holder.get()->*setters.set)(Value(b));
  EXPECT_THAT(holdersOf(*a, setters.inverse), IsEmpty());
  EXPECT_THAT(holdersOf(*b, setters.inverse), ElementsAre(holder));
  (holder.get()->*setters.set)(Value());
  EXPECT_THAT(holdersOf(*b, setters.inverse), IsEmpty());
  (holder.get()->*setters.set)(toB);
  EXPECT_THAT(holdersOf(*b, setters.inverse), ElementsAre(holder));
  return holder;
}

TEST(SingleReference, KeepsBothSidesInStep) {
  expectInStep<FcBuildingStorey>(
      SingleSetters<FcRelAggregates, std::shared_ptr<FcObjectDefinition>>{
          &FcRelAggregates::setRelatingObject, "RelatingObject", "IsDecomposedBy"});
}

TEST(SingleReference, IsUnlinkedWhenItsOptionalAttributeIsCleared) {
  using Boundary = FcRelSpaceBoundary1stLevel;
  const auto boundary = expectInStep<Boundary>(SingleSetters<Boundary, std::shared_ptr<Boundary>>{
      &Boundary::setParentBoundary, "ParentBoundary", "InnerBoundaries"});
  const auto parent = make<Boundary>();
  boundary->setParentBoundary(parent);
  boundary->clearParentBoundary();
  EXPECT_EQ(boundary->ParentBoundary(), nullptr);
  EXPECT_TRUE(parent->InnerBoundaries().empty());
}

TEST(SelectReference, KeepsBothSidesInStepWithEachAlternative) {
  using Rel = FcRelAssignsToProduct;
  const SingleSetters<Rel, FcProductSelect> setters{&Rel::setRelatingProduct, "RelatingProduct",
                                                    "ReferencedBy"};
  expectInStep<FcWall>(setters);
  expectInStep<FcWallType>(setters);

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

// The typed setters of a list; `add` inserts into a SET and pushes back to a LIST.
template <class Holder, class Element>
struct ListSetters {
  void (Holder::*set)(std::vector<Element>);
  void (Holder::*add)(Element);
  void (Holder::*erase)(const Element&);
  const char* attribute;
  const char* inverse;
};

enum class Kind { set, list };

template <class Target, class Holder, class Element>
std::shared_ptr<Holder> expectInStep(Kind kind, const ListSetters<Holder, Element>& setters) {
  const auto holder = make<Holder>();
  const auto a = make<Target>(), b = make<Target>(), c = make<Target>();
  const auto add = [&](Element element) { (holder.get()->*setters.add)(std::move(element)); };
  const auto erase = [&](const Element& element) { (holder.get()->*setters.erase)(element); };
  const auto expectElements = [&](const test::Entities& expected) {
    EXPECT_EQ(holder->getLocalValue(object::PropertyId(setters.attribute)), test::listOf(expected));
    for (const auto& target : {a, b, c}) {
      const bool named = std::ranges::count(expected, target) > 0;
      EXPECT_THAT(holdersOf(*target, setters.inverse),
                  testing::ElementsAreArray(named ? test::Entities{holder} : test::Entities{}));
    }
  };

  add(Element(a));
  expectElements({a});
  add(Element(b));
  add(Element(a));
  expectElements(kind == Kind::set ? test::Entities{a, b} : test::Entities{a, b, a});
  const std::vector<Element> given{Element(c), Element(), Element(a), Element(c)};
  (holder.get()->*setters.set)(given);
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
  (holder.get()->*setters.set)(std::vector<Element>{Element(b)});
  expectElements({b});
  (holder.get()->*setters.set)({});
  expectElements({});
  add(Element(a));
  return holder;
}

TEST(SetOfReferences, KeepsBothSidesInStep) {
  using Rel = FcRelAggregates;
  expectInStep<FcWall>(Kind::set, ListSetters<Rel, std::shared_ptr<FcObjectDefinition>>{
                                      &Rel::setRelatedObjects, &Rel::insertRelatedObjects,
                                      &Rel::eraseRelatedObjects, "RelatedObjects", "Decomposes"});
}

TEST(ListOfReferences, KeepsBothSidesInStep) {
  using Rel = FcRelNests;
  expectInStep<FcWall>(Kind::list, ListSetters<Rel, std::shared_ptr<FcObjectDefinition>>{
                                       &Rel::setRelatedObjects, &Rel::pushBackRelatedObjects,
                                       &Rel::eraseRelatedObjects, "RelatedObjects", "Nests"});
}

TEST(SetOfSelects, KeepsBothSidesInStepWithEachAlternative) {
  using Rel = FcRelDeclares;
  const ListSetters<Rel, FcDefinitionSelect> setters{
      &Rel::setRelatedDefinitions, &Rel::insertRelatedDefinitions, &Rel::eraseRelatedDefinitions,
      "RelatedDefinitions", "HasContext"};
  expectInStep<FcWall>(Kind::set, setters);
  expectInStep<FcPropertySet>(Kind::set, setters);
}

TEST(OptionalSet, IsPresentAfterAnInsertionAndUnlinksAllWhenCleared) {
  const auto type = expectInStep<FcPropertySet>(
      Kind::set, ListSetters<FcTypeObject, std::shared_ptr<FcPropertySetDefinition>>{
                     &FcTypeObject::setHasPropertySets, &FcTypeObject::insertHasPropertySets,
                     &FcTypeObject::eraseHasPropertySets, "HasPropertySets", "DefinesType"});
  const auto a = make<FcPropertySet>(), b = make<FcPropertySet>();
  type->setHasPropertySets({a, nullptr, b});
  type->clearHasPropertySets();
  EXPECT_FALSE(type->HasPropertySets());
  EXPECT_TRUE(a->DefinesType().empty() && b->DefinesType().empty());
  type->eraseHasPropertySets(a);
  EXPECT_FALSE(type->HasPropertySets()) << "erasing from an absent set leaves it absent";
  type->insertHasPropertySets(a);
  EXPECT_THAT(*type->HasPropertySets(), ElementsAre(a));
}

TEST(OptionalList, IsPresentAfterAnInsertionAndUnlinksAllWhenCleared) {
  const auto person = expectInStep<FcTelecomAddress>(
      Kind::list, ListSetters<FcPerson, std::shared_ptr<FcAddress>>{
                      &FcPerson::setAddresses, &FcPerson::pushBackAddresses,
                      &FcPerson::eraseAddresses, "Addresses", "OfPerson"});
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
