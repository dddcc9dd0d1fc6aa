#pragma once

#include <cstdint>
#include <span>

#include "Fc/Reflection/ClassInfo.h"
#include "Fc/Reflection/EnumInfo.h"
#include "Fc/Reflection/SelectInfo.h"
#include "Qor/Platform/Export.h"

namespace qor::fc {

/// The classes and types of one group of the schema.
struct GroupTables {
  std::span<const ClassInfo* const> classes;
  std::span<const EnumInfo* const> enumerations;
  std::span<const SelectInfo* const> selects;
};

/// The whole schema as constant tables, put together from those of the groups on the first call.
class QOR_API SchemaTables {
 public:
  struct HashedClass {
    std::uint32_t hash;
    const ClassInfo* info;
  };

  /// The class with id `i` stands at `i - 1`.
  static std::span<const ClassInfo* const> classes();
  /// Ordered by the hash of the mixed-case name.
  static std::span<const HashedClass> classesByHash();
  /// Ordered by name, as the selects are.
  static std::span<const EnumInfo* const> enumerations();
  static std::span<const SelectInfo* const> selects();
  /// The names of all attributes, forward and inverse, each once, in ascending order.
  static std::span<const char* const> attributeNames();

 private:
  static std::span<const GroupTables* const> groups();
};

}  // namespace qor::fc
