#include <gmock/gmock.h>

#include <algorithm>
#include <set>

#include "Fc/Factory.h"
#include "Fc/FcBase.h"
#include "Tests/Fc/Relationships/RelationshipTable.h"
#include "Tests/Fc/Relationships/Sides.h"

// What must hold for each of the schema's relationships, whatever the classes: all through
// reflection.
namespace qor::fc::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

const ClassInfo& classNamed(const std::string& name) {
  return *Factory::find(StringHash::of(name));
}

std::string shapeOf(const AttributeInfo& attribute) {
  if (attribute.aggregates.empty()) return "one";
  return attribute.aggregates.front().kind == AggregateInfo::Kind::set ? "set" : "list";
}

std::string owned(const ClassInfo& owner, const AttributeInfo& attribute) {
  return std::string(owner.name.view()) + '.' + std::string(attribute.name);
}

// As the forward attributes tell it.
std::multiset<std::string> forwardRelationships() {
  std::multiset<std::string> result;
  for (const ClassInfo* holder : Factory::classes())
    for (const AttributeInfo& attribute : holder->attributes)
      for (const InverseLink& link : attribute.links) {
        const ClassInfo& target = *Factory::classes()[link.first - 1];
        EXPECT_EQ(target.classIdLast, link.last) << target.name.text;
        result.insert(owned(*holder, attribute) + ' ' + shapeOf(attribute) + ' ' +
                      owned(target, *link.inverse) + (link.single ? " ref" : " set"));
      }
  return result;
}

// As the inverse attributes tell it.
std::multiset<std::string> inverseRelationships() {
  std::multiset<std::string> result;
  for (const ClassInfo* target : Factory::classes())
    for (const AttributeInfo& inverse : target->inverseAttributes) {
      const ClassInfo& holder = classNamed(std::string(inverse.typeName));
      const AttributeInfo* forward = holder.findAttribute(inverse.forward);
      const bool single = inverse.aggregates.empty() || inverse.aggregates.front().upper == 1;
      result.insert(owned(holder, *forward) + ' ' + shapeOf(*forward) + ' ' +
                    owned(*target, inverse) + (single ? " ref" : " set"));
    }
  return result;
}

using Texts = std::vector<std::string>;

Texts without(const std::multiset<std::string>& all, const std::multiset<std::string>& known) {
  Texts rest;
  std::ranges::set_difference(all, known, std::back_inserter(rest));
  return rest;
}

TEST(Relationships, AreThoseOfTheTableInBothDirections) {
  std::multiset<std::string> table;
  for (const Relationship& row : relationshipTable()) table.insert(row.text());
  for (const auto& found : {forwardRelationships(), inverseRelationships()}) {
    EXPECT_THAT(without(table, found), IsEmpty());
    EXPECT_THAT(without(found, table), IsEmpty());
  }
}

// An instance of the class, or of the first subclass that has any.
std::shared_ptr<FcBase> instanceOf(const std::string& name) {
  const ClassInfo& info = classNamed(name);
  for (std::uint32_t id = info.classId; id <= info.classIdLast; ++id)
    if (const auto create = Factory::classes()[id - 1]->create) return create();
  return nullptr;
}

// One row with a holder, another one, and two targets.
struct Example {
  explicit Example(const Relationship& relationship)
      : row(relationship),
        holder(instanceOf(row.holder)),
        other(instanceOf(row.holder)),
        a(instanceOf(row.target)),
        b(instanceOf(row.target)) {}

  bool set(const std::shared_ptr<FcBase>& from, LocalValue value) const {
    return from->setLocalValue(std::move(value), object::PropertyId(row.attribute));
  }
  /// Makes `from` name `to`, alone.
  bool name(const std::shared_ptr<FcBase>& from, const std::shared_ptr<FcBase>& to) const {
    return set(from, row.isList() ? listOf({to}) : valueOf(to));
  }
  bool clear(const std::shared_ptr<FcBase>& from) const {
    return set(from, LocalValue(details::EmptyValue()));
  }
  LocalValue forward() const { return holder->getLocalValue(object::PropertyId(row.attribute)); }
  Entities mirrored(const std::shared_ptr<FcBase>& target) const {
    return holdersOf(*target, row.inverse);
  }

  const Relationship& row;
  std::shared_ptr<FcBase> holder, other, a, b;
};

template <class Check>
void forEachExample(Check check) {
  for (const Relationship& row : relationshipTable()) {
    SCOPED_TRACE(row.text());
    Example example(row);
    ASSERT_TRUE(example.holder && example.a);
    check(example);
  }
}

TEST(EveryRelationship, IsMirroredWhereverItsForwardAttributeIsSet) {
  forEachExample([](const Example& x) {
    EXPECT_TRUE(x.name(x.holder, x.a));
    EXPECT_THAT(x.mirrored(x.a), ElementsAre(x.holder));
    EXPECT_TRUE(x.name(x.holder, x.a));
    EXPECT_THAT(x.mirrored(x.a), ElementsAre(x.holder)) << "set to what it was";
    EXPECT_TRUE(x.name(x.holder, x.b));
    EXPECT_THAT(x.mirrored(x.a), IsEmpty());
    EXPECT_THAT(x.mirrored(x.b), ElementsAre(x.holder));
    EXPECT_FALSE(x.set(x.holder, LocalValue(2.5)));
    EXPECT_THAT(x.mirrored(x.b), ElementsAre(x.holder)) << "set to what it can't be";
    EXPECT_TRUE(x.clear(x.holder));
    EXPECT_THAT(x.mirrored(x.b), IsEmpty());
  });
}

TEST(EveryRelationship, ListsStoreNullAndRepeatedElementsUnchanged) {
  forEachExample([](const Example& x) {
    if (!x.row.isList()) return;
    const LocalValue list = listOf({x.a, nullptr, x.b, x.a});
    EXPECT_TRUE(x.set(x.holder, list));
    EXPECT_EQ(x.forward(), list);
    EXPECT_THAT(x.mirrored(x.a), ElementsAre(x.holder));
    EXPECT_THAT(x.mirrored(x.b), ElementsAre(x.holder));
    EXPECT_TRUE(x.set(x.holder, listOf({nullptr, x.b})));
    EXPECT_THAT(x.mirrored(x.a), IsEmpty());
    EXPECT_THAT(x.mirrored(x.b), ElementsAre(x.holder));
    EXPECT_TRUE(x.set(x.holder, listOf({})));
    EXPECT_THAT(x.mirrored(x.b), IsEmpty());
  });
}

TEST(EveryRelationship, OfTwoHoldersIsMirroredTwiceInASetAndOnceInAReference) {
  forEachExample([](const Example& x) {
    x.name(x.holder, x.a);
    x.name(x.other, x.a);
    if (x.row.single)
      EXPECT_THAT(x.mirrored(x.a), ElementsAre(x.other)) << "the one linked last";
    else
      EXPECT_THAT(x.mirrored(x.a), UnorderedElementsAre(x.holder, x.other));
    x.clear(x.holder);
    if (x.row.single)
      EXPECT_THAT(x.mirrored(x.a), IsEmpty()) << "reset without a look at its holder";
    else
      EXPECT_THAT(x.mirrored(x.a), ElementsAre(x.other));
  });
}

TEST(EveryRelationship, IsMirroredAgainByAnUpdate) {
  forEachExample([](const Example& x) {
    x.set(x.holder, x.row.isList() ? listOf({nullptr, x.a}) : valueOf(x.a));
    x.a->clearInverseAttributes();
    EXPECT_THAT(x.mirrored(x.a), IsEmpty());
    EXPECT_NE(x.forward(), LocalValue(details::EmptyValue()));
    x.holder->updateInverseAttributes();
    x.holder->updateInverseAttributes();
    EXPECT_THAT(x.mirrored(x.a), ElementsAre(x.holder));
    x.name(x.other, x.b);
    x.holder->updateInverseAttributes();
    EXPECT_THAT(x.mirrored(x.b), ElementsAre(x.other)) << "an update removes nothing";
  });
}

TEST(EveryRelationship, IsWalkedFromBothSidesOnlyWhenInverseOnesAreFollowed) {
  forEachExample([](const Example& x) {
    x.name(x.holder, x.a);
    EXPECT_THAT(reached(*x.holder, false), ElementsAre(x.row.attribute));
    EXPECT_THAT(reached(*x.a, false), IsEmpty());
    EXPECT_THAT(reached(*x.a, true), testing::Contains(x.row.inverse));
  });
}

TEST(EveryRelationship, OfADeadHolderIsNotSeen) {
  forEachExample([](Example& x) {
    x.name(x.holder, x.a);
    x.holder.reset();
    EXPECT_THAT(x.mirrored(x.a), IsEmpty());
    EXPECT_THAT(reached(*x.a, true), IsEmpty());
    if (!x.row.single) {
      x.name(x.other, x.a);
      EXPECT_THAT(x.mirrored(x.a), ElementsAre(x.other));
    }
  });
}

TEST(EveryRelationship, CanNotBeWrittenFromItsInverseSide) {
  forEachExample([](const Example& x) {
    for (const LocalValue& value :
         {valueOf(x.holder), listOf({x.holder}), LocalValue(details::EmptyValue())})
      EXPECT_FALSE(x.a->setLocalValue(value, object::PropertyId(x.row.inverse)));
    EXPECT_THAT(x.mirrored(x.a), IsEmpty());
  });
}

}  // namespace
}  // namespace qor::fc::test
