#include "Tests/Support/RandomModel.h"

#include <algorithm>
#include <limits>

#include "Fc/Factory.h"
#include "Fc/Reflection/ClassInfo.h"
#include "Fc/Reflection/EnumInfo.h"
#include "Fc/Reflection/SelectInfo.h"

namespace qor::test {

namespace {

using fc::LocalValue;

class Filler {
 public:
  Filler(const std::vector<std::shared_ptr<fc::FcBase>>& entities, std::mt19937& random)
      : m_entities(entities), m_random(random) {}

  // Offers values of all kinds until the attribute takes one: the attribute knows its type best.
  void fill(fc::FcBase& entity, const fc::AttributeInfo& attribute) {
    if (below(3) == 0) return;
    for (int attempt = 0; attempt < 6; ++attempt)
      if (entity.setLocalValue(value(attribute, 0), attribute.id())) return;
  }

 private:
  std::size_t below(std::size_t n) { return m_random() % n; }

  LocalValue value(const fc::AttributeInfo& attribute, std::size_t level) {
    if (level < attribute.aggregates.size()) {
      LocalValue::List list;
      for (std::size_t i = below(4); i > 0; --i) list.push_back(value(attribute, level + 1));
      return LocalValue(std::move(list));
    }
    if (attribute.type->enumeration) {
      const auto names = attribute.type->enumeration->names;
      return LocalValue(std::string(names[below(names.size())]));
    }
    if (attribute.type->entitiesOnly) return LocalValue(m_entities[below(m_entities.size())]);
    return scalar(attribute.type->select);
  }

  LocalValue scalar(const fc::SelectInfo* select) {
    static constexpr double reals[] = {0, -1.5, 2.5, 1e300,
                                       std::numeric_limits<double>::quiet_NaN()};
    LocalValue result = [&] {
      switch (below(6)) {
        case 0:
          return LocalValue(reals[below(5)]);
        case 1:
          return LocalValue(static_cast<std::int64_t>(below(3)));
        case 2:
          return LocalValue(std::string(below(3), 'a'));
        case 3:
          return LocalValue(below(2) == 0);
        case 4:
          return LocalValue(LogicalValue::Unknown);
        default:
          return LocalValue(Guid(static_cast<std::uint32_t>(below(3)), 0, 0, {}));
      }
    }();
    if (select) result.typeName = leaf(*select);
    return result;
  }

  std::string leaf(const fc::SelectInfo& select) {
    const fc::AlternativeInfo& alternative = select.alternatives[below(select.alternatives.size())];
    return alternative.nested ? leaf(*alternative.nested) : std::string(alternative.ifcName);
  }

  const std::vector<std::shared_ptr<fc::FcBase>>& m_entities;
  std::mt19937& m_random;
};

}  // namespace

std::vector<std::shared_ptr<fc::FcBase>> randomEntities(std::size_t count, std::uint32_t seed) {
  std::mt19937 random(seed);
  std::vector<const fc::ClassInfo*> classes;
  for (const fc::ClassInfo* info : fc::Factory::classes())
    if (!info->isAbstract()) classes.push_back(info);
  std::shuffle(classes.begin(), classes.end(), random);

  std::vector<std::shared_ptr<fc::FcBase>> entities;
  // Few classes, so that entities of one class meet.
  const std::size_t kinds = std::max<std::size_t>(1, count / 8);
  for (std::size_t i = 0; i < count; ++i) entities.push_back(classes[random() % kinds]->create());
  Filler filler(entities, random);
  for (const auto& entity : entities)
    entity->classInfo().forEachAttribute(
        [&](const fc::AttributeInfo& attribute) { filler.fill(*entity, attribute); });
  return entities;
}

void empty(fc::FcBase& entity) {
  entity.classInfo().forEachAttribute([&](const fc::AttributeInfo& attribute) {
    attribute.type->setLocalValue(attribute.of(entity), fc::LocalValue(fc::details::EmptyValue()));
  });
}

}  // namespace qor::test
