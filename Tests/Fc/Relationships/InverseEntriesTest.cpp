#include "Fc/Reflection/InverseEntries.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <random>
#include <set>

#include "Fc/Core/Kernel/FcRelAggregates.h"
#include "Fc/Reflection/InverseSet.h"

namespace qor::fc {
namespace {

using core::kernel::FcRelAggregates;
using Model = std::set<std::weak_ptr<FcBase>, std::owner_less<>>;
using Holders = std::vector<std::shared_ptr<FcBase>>;

Holders someHolders(std::size_t count) {
  Holders holders;
  for (std::size_t i = 0; i < count; ++i) holders.push_back(std::make_shared<FcRelAggregates>());
  return holders;
}

Holders alive(const InverseEntries& entries) {
  Holders result;
  entries.forEach([&result](std::shared_ptr<FcBase>&& holder) { result.push_back(holder); });
  return result;
}

Holders alive(const Model& model) {
  Holders result;
  for (const auto& entry : model)
    if (auto holder = entry.lock()) result.push_back(holder);
  return result;
}

TEST(InverseEntries, AreASetOrderedByOwnerThroughAnyRunOfInsertionsAndErasures) {
  std::mt19937 random(4711);
  // Few holders stay in the array, many go to the tree and back down to nothing.
  for (const std::size_t count : {std::size_t{3}, InverseEntries::flatLimit,
                                  InverseEntries::flatLimit + 1, std::size_t{4000}}) {
    SCOPED_TRACE(count);
    Holders holders = someHolders(count);
    InverseEntries entries;
    Model model;
    for (std::size_t step = 0; step < 4 * count; ++step) {
      const auto& holder = holders[random() % count];
      if (random() % 3 != 0) {
        entries.insert(holder);
        model.insert(holder);
      } else {
        entries.erase(holder);
        model.erase(holder);
      }
      ASSERT_EQ(entries.size(), model.size());
    }
    EXPECT_EQ(alive(entries), alive(model));
    std::ranges::shuffle(holders, random);
    for (const auto& holder : holders) entries.insert(holder);
    EXPECT_EQ(entries.size(), count);
    for (const auto& holder : holders) entries.erase(holder);
    EXPECT_TRUE(entries.empty());
  }
}

TEST(InverseEntries, KeepDeadOnesUntilTheyAreErased) {
  for (const std::size_t count : {std::size_t{5}, std::size_t{500}}) {
    SCOPED_TRACE(count);
    Holders holders = someHolders(count);
    InverseEntries entries;
    for (const auto& holder : holders) entries.insert(holder);
    const std::weak_ptr<FcBase> dead = holders.back();
    holders.pop_back();
    EXPECT_EQ(entries.size(), count);
    EXPECT_EQ(alive(entries).size(), count - 1);
    entries.erase(dead);
    EXPECT_EQ(entries.size(), count - 1);
    entries.replace(holders.front());
    EXPECT_THAT(alive(entries), testing::ElementsAre(holders.front()));
    EXPECT_EQ(entries.size(), 1U);
    entries.clear();
    EXPECT_TRUE(entries.empty());
    EXPECT_EQ(entries.size(), 0U);
  }
}

TEST(InverseEntries, AreFewHoweverManyCameAndWent) {
  InverseEntries entries;
  for (int i = 0; i < 100000; ++i) entries.insert(std::make_shared<FcRelAggregates>());
  EXPECT_LT(entries.size(), 100U);
}

TEST(InverseEntries, AreVisitedUntilTheFirstIsFound) {
  const Holders holders = someHolders(10);
  InverseEntries entries;
  for (const auto& holder : holders) {
    EXPECT_TRUE(entries.insert(holder));
    EXPECT_FALSE(entries.insert(holder)) << "there already";
  }
  int visited = 0;
  entries.forEachUntil([&visited](const std::shared_ptr<FcBase>&) { return ++visited == 3; });
  EXPECT_EQ(visited, 3);
}

TEST(InverseEntries, HoldNobodyAlive) {
  InverseSet<FcRelAggregates> entries;
  auto holder = std::make_shared<FcRelAggregates>();
  entries.insert(holder);
  EXPECT_THAT(entries.lock(), testing::ElementsAre(holder));
  EXPECT_EQ(holder.use_count(), 1);
  holder.reset();
  EXPECT_THAT(entries.lock(), testing::IsEmpty());
  EXPECT_FALSE(entries.empty());
}

}  // namespace
}  // namespace qor::fc
