#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace qor::host::step {

/// What the files of older schemas have otherwise than the class of the same name in the model: one
/// row a class.
struct OlderClass {
  /// The schemas that have it so: a set of `SchemaVersion`.
  std::uint8_t versions;
  std::string_view upperName;  ///< "IFCDOORSTYLE"
  /// The class that its instances become, "IfcDoorType"; `unwrapped` where each stands for the
  /// elements of its first attribute.
  std::string_view becomes;
  /// Its attributes in the order of the file, each by the name of the attribute that it becomes.
  /// Empty when they are those of the class, with fewer at the end.
  ///
  ///     @IfcRoot              all attributes of that class, as the model has them
  ///     -Sizeable             has no place in the model
  ///     StartParam:IFCREAL    a plain value, where the model has a select: is of that type
  ///     Currency'             an enumerator, where the model has a text
  ///     CountValue%           a real, where the model has an integer
  std::string_view attributes{};
};

inline constexpr std::string_view unwrapped = "()";

std::span<const OlderClass> olderClasses();

}  // namespace qor::host::step
