#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "Fc/Reflection/TypeOperations.h"

namespace qor::fc {

class SelectBase;

/// How one alternative of a select is made, copied and spelled. `value` is the address of the
/// alternative's value.
struct AlternativeOperations {
  std::size_t size;
  /// Small enough to stand in the select itself.
  bool inPlace;
  void (*construct)(void* place);
  /// Null where the bytes are all there is to copy and to move, and nothing to destroy.
  void (*copy)(void* place, const void* value);
  void (*move)(void* place, void* value);
  void (*destroy)(void* value);
  /// How a report spells the type of the value; null where the value has a text form.
  std::string (*spelling)();
  const TypeOperations* type;
};

struct AlternativeInfo {
  std::string_view name;       ///< "LengthMeasure"
  std::string_view ifcName;    ///< "IfcLengthMeasure"
  std::string_view upperName;  ///< "IFCLENGTHMEASURE"
  /// Class id range of an entity alternative; 1, 0 for others, which holds no id.
  std::uint32_t first;
  std::uint32_t last;
  const SelectInfo* nested;
  const AlternativeOperations* operations;

  bool isEntity() const { return first <= last; }
  bool holds(std::uint32_t classId) const { return classId >= first && classId <= last; }
};

/// A select type of the schema as a table: its alternatives in ascending order of their names.
struct SelectInfo {
  std::string_view name;  ///< "IfcValue"
  std::span<const AlternativeInfo> alternatives;
  /// All alternatives are selects: texts name the alternatives of those.
  bool nestedOnly;
  /// The number of alternatives that are neither entities nor selects.
  std::uint32_t valueCount;
  /// No alternative, at any depth, is a value.
  bool entitiesOnly;
};

}  // namespace qor::fc
