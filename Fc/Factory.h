#pragma once

#include <map>
#include <memory>
#include <optional>
#include <span>
#include <typeindex>
#include <utility>

#include "Fc/Reflection/ClassInfo.h"
#include "Qor/Platform/Export.h"
#include "Qor/String/StringHash.h"

namespace qor::fc {

class FcBase;

/// The whole schema by name: 876 classes, of which 743 can be instantiated.
///
/// The key is the hash of the mixed-case name ("IfcWall"); the characters aren't compared, and
/// "IFCWALL" is unknown. A look-up is about ten comparisons of numbers. An unknown name raises an
/// assert that names it and gives the negative result. Safe from any thread.
class QOR_API Factory {
 public:
  /// A new, empty instance; null for an unknown or abstract class.
  static std::shared_ptr<FcBase> objectFromIfcName(const StringHash& name);
  /// Empty for an unknown or abstract class.
  static std::optional<std::type_index> typeInfoFromIfcName(const StringHash& name);
  /// (`classId`, `classIdLast`); abstract classes too.
  static std::optional<std::pair<unsigned int, unsigned int>> boundFromIfcName(
      const StringHash& name);
  /// The classes that can be instantiated, by type. Built on the first call.
  static const std::map<std::type_index, StringHash>& getFcClasses();

  /// All classes, abstract ones too: the class with id `i` stands at `i - 1`.
  static std::span<const ClassInfo* const> classes();
  /// The record of a class; null, without an assert, for an unknown name.
  static const ClassInfo* find(const StringHash& name);
};

}  // namespace qor::fc
