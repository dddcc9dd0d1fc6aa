#pragma once

#include <iosfwd>
#include <optional>
#include <string>
#include <vector>

/// The schema as values: what the importer makes of an EXPRESS text and the generator makes C++ of.
///
/// Names are the schema's own, with its capitals ("IfcWall"). A group is the namespace below
/// `qor::fc` in which an element is published ("shared::buildingelements").
namespace qor::schema {

/// One level of LIST, SET, ARRAY or BAG around a type, with its bounds as written.
struct Aggregate {
  enum class Kind { list, set, array, bag };
  Kind kind = Kind::list;
  int lower = 0;
  std::optional<int> upper;  ///< Empty for `?`, any number.
  bool unique = false;       ///< LIST or ARRAY OF UNIQUE.
  bool operator==(const Aggregate&) const = default;
};

/// The type of an attribute, or what a defined type stands on.
struct TypeReference {
  std::vector<Aggregate> aggregates;  ///< Outermost first; empty for a single value.
  /// An element of the table, or one of the basic types "REAL" "NUMBER" "INTEGER" "STRING"
  /// "BOOLEAN" "LOGICAL" "BINARY". Widths such as STRING(255) are not kept.
  std::string name;
  bool operator==(const TypeReference&) const = default;
};

struct Attribute {
  std::string name;
  TypeReference type;
  bool optional = false;
  bool operator==(const Attribute&) const = default;
};

/// The other end of `forward`, an attribute of `entity` or of its supertypes.
struct InverseAttribute {
  std::string name;
  std::optional<Aggregate> aggregate;  ///< Empty for a single one, which must be there.
  std::string entity;
  std::string forward;
  bool operator==(const InverseAttribute&) const = default;
};

struct Entity {
  std::string name;
  std::string group;
  std::string supertype;  ///< Empty for a root.
  bool abstract = false;
  std::vector<Attribute> attributes;       ///< Its own, in the schema's order.
  std::vector<InverseAttribute> inverses;  ///< Its own, in the schema's order.
  /// Attributes of supertypes that are computed in this class, and so have no value of their own.
  std::vector<std::string> derived;
  bool operator==(const Entity&) const = default;
};

struct DefinedType {
  std::string name;
  std::string group;
  TypeReference underlying;
  bool operator==(const DefinedType&) const = default;
};

struct Enumeration {
  std::string name;
  std::string group;
  std::vector<std::string> enumerators;  ///< In the schema's order.
  bool operator==(const Enumeration&) const = default;
};

struct Select {
  std::string name;
  std::string group;
  std::vector<std::string> members;  ///< In the schema's order; may be selects themselves.
  bool operator==(const Select&) const = default;
};

/// Each list is sorted by name, byte by byte.
struct SchemaTable {
  std::string name;
  std::vector<Entity> entities;
  std::vector<DefinedType> definedTypes;
  std::vector<Enumeration> enumerations;
  std::vector<Select> selects;
  bool operator==(const SchemaTable&) const = default;
};

/// The table that `writeSchemaTable` wrote or a person edited; elements may come in any order.
///
/// Throws std::runtime_error: "line 12: …" for a line that can't be read, and what
/// `checkSchemaTable` throws for a table whose lines don't fit together.
SchemaTable readSchemaTable(std::istream& in);

/// Writes the table as text, one line for each element and, indented below it, each of its members.
/// Equal tables give equal bytes.
void writeSchemaTable(std::ostream& out, const SchemaTable& table);

/// Puts each list in its order.
void sortSchemaTable(SchemaTable& table);

}  // namespace qor::schema
