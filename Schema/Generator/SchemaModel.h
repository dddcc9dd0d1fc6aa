#pragma once

#include <cstdint>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "Schema/Generator/Groups.h"
#include "Schema/SchemaTable.h"

namespace qor::schema {

/// What kind of element a name of the schema stands for.
enum class ElementKind { basic, definedType, enumeration, select, entity };

/// What the generator asks of a schema table: class ids, C++ names and types, and which forward
/// attribute writes which inverse.
class SchemaModel {
 public:
  /// An inverse attribute that a forward attribute writes: on entities of `owner`, at `index` of
  /// its inverse attributes.
  struct Link {
    const Entity* owner;
    std::size_t index;
    bool single;
  };

  /// `handWritten` are the classes whose final form stands in the source tree. Throws
  /// std::runtime_error that names what is wrong.
  SchemaModel(SchemaTable table, std::set<std::string> handWritten);

  const SchemaTable& table() const { return m_table; }
  bool isHandWritten(const Entity& entity) const { return m_handWritten.contains(entity.name); }
  bool isHandWritten(const Select& select) const { return m_handWritten.contains(select.name); }

  /// Ids from 1 in a depth-first walk of the inheritance forest, roots and subclasses in the order
  /// of their names.
  std::uint32_t firstId(const Entity& entity) const { return m_ids.at(entity.name).first; }
  std::uint32_t lastId(const Entity& entity) const { return m_ids.at(entity.name).second; }
  /// All entities, ordered by id.
  const std::vector<const Entity*>& byId() const { return m_byId; }
  const Entity& entity(const std::string& name) const { return *m_entities.at(name); }

  ElementKind kind(const std::string& name) const;
  const Group& group(const std::string& name) const;
  const Select& select(const std::string& name) const { return *m_selects.at(name); }

  /// The type of an attribute's member as the class in `fromGroup` spells it.
  std::string memberType(const Entity& owner, const Attribute& attribute) const;
  /// The type of a defined type's value.
  std::string valueType(const DefinedType& type) const;
  /// The type of an alternative of a select.
  std::string alternativeType(const std::string& member, const Group& from) const;
  /// The element's class, with its namespace when that isn't the one of `from`:
  /// "resource::measure::FcLengthMeasure".
  std::string className(const std::string& name, const Group& from) const;
  /// The elements that the attribute's member type needs declared: the innermost named one.
  const std::string& elementOf(const TypeReference& type) const { return type.name; }
  /// Members of entity references, of lists of them, and of lists of selects are changed by insert,
  /// pushBack and erase.
  bool isReferenceList(const Attribute& attribute) const;

  /// The names of all attributes, forward and inverse, each once, in ascending order.
  const std::vector<std::string>& attributeNames() const { return m_attributeNames; }
  /// The position of an attribute's name among them.
  std::size_t nameIndex(const std::string& attribute) const;

  std::vector<Link> links(const Entity& owner, const Attribute& attribute) const;
  /// The class or one of its supertypes has a forward attribute with an inverse.
  bool linksTargets(const Entity& entity) const;

  /// The basic type at the end of a chain of defined types; empty for anything that is aggregated
  /// on the way.
  std::string basicType(const std::string& name) const;
  /// An alternative of IfcMeasureValue or IfcDerivedMeasureValue that is one number.
  bool isNumericMeasure(const DefinedType& type) const;
  /// No alternative, at any depth, is a value.
  bool entitiesOnly(const Select& select) const;

 private:
  std::string elementType(const std::string& name, const Group& from) const;
  std::string aggregated(std::string element, const std::vector<Aggregate>& aggregates,
                         bool tuples) const;
  void number(const Entity& entity, std::uint32_t& next);

  SchemaTable m_table;
  std::set<std::string> m_handWritten;
  std::map<std::string, const Entity*> m_entities;
  std::map<std::string, const DefinedType*> m_definedTypes;
  std::map<std::string, const Enumeration*> m_enumerations;
  std::map<std::string, const Select*> m_selects;
  std::map<std::string, std::vector<const Entity*>> m_subclasses;
  std::map<std::string, std::pair<std::uint32_t, std::uint32_t>> m_ids;
  std::vector<const Entity*> m_byId;
  std::map<std::pair<std::string, std::string>, std::vector<Link>> m_links;
  std::vector<std::string> m_attributeNames;
};

/// "IfcWall" gives "FcWall".
inline std::string fcName(std::string_view ifcName) {
  return "Fc" + std::string(ifcName.substr(3));
}
/// "IfcWall" gives "Wall".
inline std::string shortName(std::string_view ifcName) { return std::string(ifcName.substr(3)); }
std::string upperName(std::string_view ifcName);

}  // namespace qor::schema
