#pragma once

#include <array>
#include <cstdint>
#include <unordered_map>
#include <vector>

#include "Fc/FcBase.h"
#include "Fc/Reflection/AttributeInfo.h"

namespace qor::host::cli {

/// Tells whether entities, also of different models, have the same content, by 128 bits that stand
/// for all that an entity holds and reaches.
///
/// A root stands for its guid where another entity refers to it, so that a change in it is its own
/// alone. Owner histories count as absent, and sets are compared without order. Every number must
/// be the same in each bit, but for the sign of 0. Each entity is looked at once; no recursion.
class ContentHash {
 public:
  using Bits = std::array<std::uint64_t, 2>;

  /// Of an attribute of the entity.
  Bits of(const fc::FcBase& entity, const fc::AttributeInfo& attribute);
  /// Of what a reference to the entity means.
  Bits of(const fc::FcBase& entity);

 private:
  class Sink;
  friend class Sink;

  /// The entities that must be known before this one.
  bool pushUnknown(const fc::FcBase& entity, std::vector<const fc::FcBase*>& stack);
  Bits contentOf(const fc::FcBase& entity);
  Bits write(const fc::FcBase& entity, const fc::AttributeInfo& attribute);

  std::unordered_map<const fc::FcBase*, Bits> m_known;
};

}  // namespace qor::host::cli
