#include "Fc/Reflection/EntityComparison.h"

#include <algorithm>
#include <typeinfo>

#include "Fc/SkipAttributeParams.h"

namespace qor::fc {

std::weak_ordering EntityComparison::order(const FcBase& a, const FcBase& b) {
  m_stack.push_back({&a, &b, std::weak_ordering::equivalent});
  return workOff();
}

std::weak_ordering EntityComparison::order(
    FunctionRef<std::weak_ordering(TypeOperations::PairCallback)> compare) {
  push(compare);
  return workOff();
}

std::weak_ordering EntityComparison::workOff() {
  while (!m_stack.empty()) {
    const Step step = m_stack.back();
    m_stack.pop_back();
    if (!step.a) return step.verdict;
    if (step.a == step.b) continue;
    const std::type_info& typeA = typeid(*step.a);
    const std::type_info& typeB = typeid(*step.b);
    if (typeA != typeB)
      return typeA.before(typeB) ? std::weak_ordering::less : std::weak_ordering::greater;
    if (!m_seen.emplace(step.a, step.b).second) continue;
    expand(*step.a, *step.b);
  }
  return std::weak_ordering::equivalent;
}

void EntityComparison::expand(const FcBase& a, const FcBase& b) {
  push([&](TypeOperations::PairCallback defer) {
    return compareAttributes(a, b, a.classInfo(), defer);
  });
}

void EntityComparison::push(FunctionRef<std::weak_ordering(TypeOperations::PairCallback)> compare) {
  const auto bottom = static_cast<std::ptrdiff_t>(m_stack.size());
  const std::weak_ordering verdict = compare([this](const FcBase& a, const FcBase& b) {
    m_stack.push_back({&a, &b, std::weak_ordering::equivalent});
  });
  if (verdict != 0) m_stack.push_back({nullptr, nullptr, verdict});
  std::reverse(m_stack.begin() + bottom, m_stack.end());
}

std::weak_ordering EntityComparison::compareAttributes(const FcBase& a, const FcBase& b,
                                                       const ClassInfo& info,
                                                       TypeOperations::PairCallback defer) const {
  if (info.parent)
    if (const auto order = compareAttributes(a, b, *info.parent, defer); order != 0) return order;
  for (const AttributeInfo& attribute : info.attributes) {
    if (m_skip && m_skip({&a, attribute.name})) continue;
    if (const auto order = attribute.type->compare(attribute.of(a), attribute.of(b), defer);
        order != 0)
      return order;
  }
  return std::weak_ordering::equivalent;
}

}  // namespace qor::fc
