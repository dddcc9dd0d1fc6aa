#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

#include "Fc/Reflection/TypeOperations.h"
#include "Qor/Platform/Export.h"

namespace qor::object {
class PropertyId;
}

namespace qor::fc {

class FcBase;

/// One level of aggregation of an attribute, as the schema declares it.
struct AggregateInfo {
  enum class Kind : std::uint8_t { list, set, array, bag };
  static constexpr std::uint32_t unbounded = 0xFFFFFFFF;

  Kind kind;
  std::uint32_t lower;
  std::uint32_t upper;
};

struct AttributeInfo;

/// Where a forward attribute is written on its target: on targets whose class id lies in [first,
/// last], into that inverse attribute.
struct InverseLink {
  std::uint32_t first;
  std::uint32_t last;
  /// Holds one entry at most: a further one replaces it.
  bool single;
  const AttributeInfo* inverse;
};

/// One attribute of a schema class, forward or inverse: constant, with the whole program's life.
struct AttributeInfo {
  /// The EXPRESS name, "PredefinedType".
  std::string_view name;
  /// The position of the name among those of all attributes, `SchemaTables::attributeNames()`.
  std::uint16_t nameIndex;
  /// The declared type without aggregation and OPTIONAL: "IfcWallTypeEnum", "IfcLabel", "REAL"; of
  /// an inverse attribute the class that holds the forward attribute.
  std::string_view typeName;
  /// Outermost first; empty for a single value.
  std::span<const AggregateInfo> aggregates;
  bool optional;
  /// Of an inverse attribute, the forward attribute that writes it; empty otherwise.
  std::string_view forward;
  /// Of a forward attribute that the schema pairs with inverse attributes.
  std::span<const InverseLink> links;
  /// Where the member stands, in bytes from the entity.
  std::uint16_t offset;
  const TypeOperations* type;

  bool isInverse() const { return !forward.empty(); }
  /// The same object as that of `object::propertyId`, on each call. Constant time.
  QOR_API const object::PropertyId& id() const;
  /// The member of an entity whose class declares or inherits this attribute (of an inverse one its
  /// `InverseEntries`); any other entity is undefined behaviour.
  void* of(FcBase& entity) const { return reinterpret_cast<std::byte*>(&entity) + offset; }
  const void* of(const FcBase& entity) const {
    return reinterpret_cast<const std::byte*>(&entity) + offset;
  }
};

}  // namespace qor::fc
