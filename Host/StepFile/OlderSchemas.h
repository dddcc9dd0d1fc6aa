#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

#include "Fc/FcBase.h"

namespace qor::host::step {

/// Numbers of a file that have no attribute of their own in the model, in the order of the row that
/// keeps them; empty where the file has none.
using KeptNumbers = std::span<const std::optional<double>>;

/// What the files of older schemas have otherwise than the class of the same name in the model: one
/// row a class, or several whose conditions are asked in their order.
struct OlderClass {
  /// The schemas that have it so: a set of `SchemaVersion`.
  std::uint8_t versions;
  std::string_view upperName;  ///< "IFCDOORSTYLE"
  /// The class that its instances become, "IfcDoorType"; `unwrapped` where each stands for the
  /// elements of its first attribute, `withoutPlace` where the model has nothing like it.
  std::string_view becomes;
  /// Its attributes in the order of the file, each by the name of the attribute that it becomes.
  /// Empty when they are those of the class, with fewer at the end.
  ///
  ///     @IfcRoot              all attributes of that class, as the model has them
  ///     -Sizeable             has no place in the model
  ///     StartParam:IFCREAL    a plain value, where the model has a select: is of that type
  ///     Currency'             an enumerator, where the model has a text
  ///     CountValue%           a real, where the model has an integer
  ///     RelatedApprovals[]    a reference, where the model has a list of them
  ///     PnIndex*              a list of numbers; one of lists has no place in the model
  ///     ~ScaleY               a number that `complete` gets
  ///     PredefinedType=SOLID  stands in no file: the enumerator that all instances have
  std::string_view attributes{};
  /// Whether an instance with this text from its parenthesis on is of this row; null for all.
  bool (*when)(std::string_view parameters) = nullptr;
  /// Gives the entity what follows from its attributes and the numbers kept; null for nothing.
  void (*complete)(fc::FcBase& entity, KeptNumbers kept) = nullptr;
  /// What is said once of a class that becomes something like it only.
  std::string_view note{};
};

/// An enumerator of an older schema that the enumeration of the model has under another name.
struct OlderEnumerator {
  std::uint8_t versions;
  std::string_view enumeration;  ///< "IfcRailwayPartTypeEnum"
  std::string_view name;         ///< "TRACKSTRUCTUREPART"
  std::string_view becomes;      ///< "TRACKPART"; empty where it has no place in the model
};

inline constexpr std::string_view unwrapped = "()";
inline constexpr std::string_view withoutPlace = "";

std::span<const OlderClass> olderClasses();
std::span<const OlderEnumerator> olderEnumerators();

}  // namespace qor::host::step
