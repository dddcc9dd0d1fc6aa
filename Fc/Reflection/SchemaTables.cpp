#include "Fc/Reflection/SchemaTables.h"

#include <algorithm>
#include <vector>

namespace qor::fc {

namespace {

template <class Info, class Key>
std::vector<const Info*> collected(std::span<const GroupTables* const> groups,
                                   std::span<const Info* const> GroupTables::*part, Key key) {
  std::vector<const Info*> all;
  for (const GroupTables* group : groups)
    all.insert(all.end(), (group->*part).begin(), (group->*part).end());
  std::sort(all.begin(), all.end(),
            [key](const Info* a, const Info* b) { return a->*key < b->*key; });
  return all;
}

}  // namespace

std::span<const ClassInfo* const> SchemaTables::classes() {
  static const auto all = collected(groups(), &GroupTables::classes, &ClassInfo::classId);
  return all;
}

std::span<const SchemaTables::HashedClass> SchemaTables::classesByHash() {
  static const std::vector<HashedClass> all = [] {
    std::vector<HashedClass> result;
    for (const ClassInfo* info : classes()) result.push_back({info->name.hash, info});
    std::sort(result.begin(), result.end(),
              [](const HashedClass& a, const HashedClass& b) { return a.hash < b.hash; });
    return result;
  }();
  return all;
}

std::span<const EnumInfo* const> SchemaTables::enumerations() {
  static const auto all = collected(groups(), &GroupTables::enumerations, &EnumInfo::name);
  return all;
}

std::span<const SelectInfo* const> SchemaTables::selects() {
  static const auto all = collected(groups(), &GroupTables::selects, &SelectInfo::name);
  return all;
}

}  // namespace qor::fc
