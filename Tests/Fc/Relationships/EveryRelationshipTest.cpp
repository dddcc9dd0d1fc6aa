#include <gmock/gmock.h>

#include "Fc/Factory.h"
#include "Fc/FcBase.h"
#include "Tests/Fc/Relationships/Sides.h"

// What must hold for each of the schema's relationships, whatever the classes: all through
// reflection.
namespace qor::fc {
namespace {

using test::Entities;
using test::holdersOf;
using test::listOf;
using test::reached;
using test::valueOf;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

/// A forward attribute and an inverse attribute that mirrors it on targets of one class.
struct Relationship {
  const ClassInfo* holder;
  const AttributeInfo* forward;
  const ClassInfo* target;
  const AttributeInfo* inverse;
  bool single;  ///< The inverse holds one entry at most.

  bool isList() const { return !forward->aggregates.empty(); }
  std::string attribute() const { return std::string(forward->name); }
  /// "IfcRelAggregates.RelatedObjects IfcObjectDefinition.Decomposes ref"
  std::string text() const {
    return std::string(holder->name.view()) + '.' + attribute() + ' ' + target->name.text + '.' +
           std::string(inverse->name) + (single ? " ref" : " set");
  }
};
using Relationships = std::vector<Relationship>;

/// As the links of the forward attributes tell it.
Relationships forwardRelationships() {
  Relationships result;
  for (const ClassInfo* holder : Factory::classes())
    for (const AttributeInfo& attribute : holder->attributes)
      for (const InverseLink& link : attribute.links) {
        const ClassInfo* target = Factory::classes()[link.first - 1];
        EXPECT_EQ(target->classIdLast, link.last) << target->name.text;
        result.push_back({holder, &attribute, target, link.inverse, link.single});
      }
  return result;
}

/// As the inverse attributes are declared.
const Relationships& relationships() {
  static const Relationships declared = [] {
    Relationships result;
    for (const ClassInfo* target : Factory::classes())
      for (const AttributeInfo& inverse : target->inverseAttributes) {
        const ClassInfo* holder = Factory::find(StringHash::of(std::string(inverse.typeName)));
        const bool single = inverse.aggregates.empty() || inverse.aggregates.front().upper == 1;
        result.push_back(
            {holder, holder->findAttribute(inverse.forward), target, &inverse, single});
      }
    return result;
  }();
  return declared;
}

TEST(Relationships, AreTheSameInBothDirections) {
  const auto texts = [](const Relationships& rows) {
    std::vector<std::string> result;
    for (const Relationship& row : rows) result.push_back(row.text());
    return result;
  };
  EXPECT_THAT(texts(forwardRelationships()),
              testing::UnorderedElementsAreArray(texts(relationships())));
  EXPECT_EQ(relationships().size(), 165u);
}

// An instance of the class, or of the first subclass that has any.
std::shared_ptr<FcBase> instanceOf(const ClassInfo& info) {
  for (std::uint32_t id = info.classId; id <= info.classIdLast; ++id)
    if (const ClassInfo& candidate = *Factory::classes()[id - 1]; !candidate.isAbstract())
      return candidate.create();
  return nullptr;
}

// One row with a holder, another one, and two targets.
struct Example {
  explicit Example(const Relationship& relationship)
      : row(relationship),
        holder(instanceOf(*row.holder)),
        other(instanceOf(*row.holder)),
        a(instanceOf(*row.target)),
        b(instanceOf(*row.target)) {}

  bool set(const std::shared_ptr<FcBase>& from, LocalValue value) const {
    return from->setLocalValue(std::move(value), row.forward->id());
  }
  /// Makes `from` name `to`, alone.
  bool name(const std::shared_ptr<FcBase>& from, const std::shared_ptr<FcBase>& to) const {
    return set(from, row.isList() ? listOf({to}) : valueOf(to));
  }
  bool clear(const std::shared_ptr<FcBase>& from) const {
    return set(from, LocalValue(details::EmptyValue()));
  }
  LocalValue forward() const { return holder->getLocalValue(row.forward->id()); }
  Entities mirrored(const std::shared_ptr<FcBase>& target) const {
    return holdersOf(*target, std::string(row.inverse->name));
  }

  const Relationship& row;
  std::shared_ptr<FcBase> holder, other, a, b;
};

template <class Check>
void forEachExample(Check check) {
  for (const Relationship& row : relationships()) {
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
    EXPECT_THAT(reached(*x.holder, false), ElementsAre(x.row.attribute()));
    EXPECT_THAT(reached(*x.a, false), IsEmpty());
    EXPECT_THAT(reached(*x.a, true), testing::Contains(std::string(x.row.inverse->name)));
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
      EXPECT_FALSE(x.a->setLocalValue(value, x.row.inverse->id()));
    EXPECT_THAT(x.mirrored(x.a), IsEmpty());
  });
}

}  // namespace
}  // namespace qor::fc
