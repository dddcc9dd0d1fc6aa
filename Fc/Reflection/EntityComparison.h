#pragma once

#include <compare>
#include <cstdint>
#include <functional>
#include <unordered_set>
#include <utility>
#include <vector>

#include "Fc/FcBase.h"
#include "Fc/Reflection/TypeOperations.h"

namespace qor::fc {

/// One comparison of two graphs of entities by content, in the order in which a walk down their
/// attributes would meet the first difference.
///
/// Works off a stack instead of recursing, and compares a pair of entities once: what is shared
/// many times over costs no more than its size.
class QOR_API EntityComparison {
 public:
  explicit EntityComparison(FcBase::SkipAttribute skip = {}) : m_skip(std::move(skip)) {}

  std::weak_ordering order(const FcBase& a, const FcBase& b);
  /// The order of two values: what `compare` gives, which takes a `TypeOperations::PairCallback`,
  /// and the pairs that it defers.
  std::weak_ordering order(FunctionRef<std::weak_ordering(TypeOperations::PairCallback)> compare);

 private:
  // A pair that must be equal, or, with null pointers, the verdict if all before it are.
  struct Step {
    const FcBase* a;
    const FcBase* b;
    std::weak_ordering verdict;
  };
  struct PairHash {
    std::size_t operator()(const std::pair<const FcBase*, const FcBase*>& pair) const {
      return std::hash<const void*>()(pair.first) * 0x9E3779B97F4A7C15U +
             std::hash<const void*>()(pair.second);
    }
  };

  // Puts what the attributes of the pair defer on the stack, first on top.
  void expand(const FcBase& a, const FcBase& b);
  std::weak_ordering compareAttributes(const FcBase& a, const FcBase& b, const ClassInfo& info,
                                       TypeOperations::PairCallback defer) const;
  void push(FunctionRef<std::weak_ordering(TypeOperations::PairCallback)> compare);
  std::weak_ordering workOff();

  FcBase::SkipAttribute m_skip;
  std::vector<Step> m_stack;
  std::unordered_set<std::pair<const FcBase*, const FcBase*>, PairHash> m_seen;
};

}  // namespace qor::fc
