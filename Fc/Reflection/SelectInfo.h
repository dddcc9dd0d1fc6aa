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
  void (*copy)(void* place, const void* value);
  void (*move)(void* place, void* value);
  void (*destroy)(void* value);
  std::optional<std::string> (*getAsString)(const void* value);
  bool (*setFromString)(void* value, const std::string& text);
  /// Null unless the alternative is a select itself.
  SelectBase* (*select)(void* value);
  /// Null unless the alternative is an entity.
  FcBase* (*entity)(const void* value);
  /// Null unless the alternative is an entity; the class must have been checked.
  void (*setEntity)(void* value, const std::shared_ptr<FcBase>& entity);
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
