#include "Schema/SchemaCheck.h"

#include <algorithm>
#include <map>
#include <set>
#include <stdexcept>

#include "Schema/TypeSyntax.h"

namespace qor::schema {
namespace {

class Check {
 public:
  explicit Check(const SchemaTable& table) : m_table(table) {}

  void run() {
    if (m_table.name.empty()) fault("the schema has no name");
    collect();
    checkMembers();
    for (const auto& [name, needs] : m_needs) findCircle(name);
    report();
    for (const Entity& entity : m_table.entities) checkEntity(entity);  // needs chains that end
    report();
  }

 private:
  void fault(const std::string& text) { m_faults += (m_faults.empty() ? "" : "\n") + text; }

  void report() const {
    if (!m_faults.empty()) throw std::runtime_error(m_faults);
  }

  void collect() {
    for (const Entity& entity : m_table.entities) {
      m_entities[entity.name] = &entity;
      define(entity.name, {entity.supertype});
    }
    for (const DefinedType& type : m_table.definedTypes) define(type.name, {type.underlying.name});
    for (const Select& select : m_table.selects) define(select.name, select.members);
    for (const Enumeration& enumeration : m_table.enumerations) define(enumeration.name, {});
  }

  void define(const std::string& name, const std::vector<std::string>& needs) {
    if (!m_needs.emplace(name, needs).second || isBasicType(name)) {
      fault(name + " is defined twice");
    }
  }

  void checkMembers() {
    for (const DefinedType& type : m_table.definedTypes) checkType(type.name, type.underlying);
    for (const Enumeration& enumeration : m_table.enumerations) {
      checkDistinct(enumeration.name, enumeration.enumerators);
    }
    for (const Select& select : m_table.selects) {
      checkDistinct(select.name, select.members);
      for (const std::string& member : select.members) {
        if (!m_needs.contains(member)) fault(select.name + ": unknown alternative " + member);
      }
    }
    for (const Entity& entity : m_table.entities) {
      if (!entity.supertype.empty() && !m_entities.contains(entity.supertype)) {
        fault(entity.name + ": unknown supertype " + entity.supertype);
      }
      for (const Attribute& attribute : entity.attributes) {
        checkType(entity.name + "." + attribute.name, attribute.type);
      }
    }
  }

  void checkType(const std::string& user, const TypeReference& type) {
    if (!isBasicType(type.name) && !m_needs.contains(type.name)) {
      fault(user + ": unknown type " + type.name);
    }
  }

  void checkDistinct(const std::string& user, const std::vector<std::string>& members) {
    if (members.empty()) fault(user + " has no members");
    std::set<std::string> seen;
    for (const std::string& member : members) {
      if (!seen.insert(member).second) fault(user + ": " + member + " is there twice");
    }
  }

  /// Follows supertypes, underlying types and alternatives from `name` on.
  void findCircle(const std::string& name) {
    const auto needs = m_needs.find(name);
    if (needs == m_needs.end() || m_done.contains(name)) return;
    if (!m_open.insert(name).second) {
      fault(name + " is defined by itself");
      return;
    }
    for (const std::string& need : needs->second) findCircle(need);
    m_open.erase(name);
    m_done.insert(name);
  }

  const Entity* supertypeOf(const Entity& entity) const {
    const auto found = m_entities.find(entity.supertype);
    return found == m_entities.end() ? nullptr : found->second;
  }

  /// Whether the entity or one of its supertypes declares the attribute; null has none.
  bool hasAttribute(const Entity* entity, const std::string& name) const {
    for (; entity; entity = supertypeOf(*entity)) {
      const auto& own = entity->attributes;
      if (std::any_of(own.begin(), own.end(), [&](const auto& a) { return a.name == name; })) {
        return true;
      }
    }
    return false;
  }

  bool hasInverse(const Entity* entity, const std::string& name) const {
    for (; entity; entity = supertypeOf(*entity)) {
      const auto& own = entity->inverses;
      if (std::any_of(own.begin(), own.end(), [&](const auto& a) { return a.name == name; })) {
        return true;
      }
    }
    return false;
  }

  void checkEntity(const Entity& entity) {
    checkNames(entity);
    for (const InverseAttribute& inverse : entity.inverses) checkInverse(entity, inverse);
    for (const std::string& attribute : entity.derived) {
      if (!hasAttribute(supertypeOf(entity), attribute)) {
        fault(entity.name + " derives " + attribute + ", which no supertype has");
      }
    }
  }

  /// No attribute, forward or inverse, has the name of another one here or in a supertype.
  void checkNames(const Entity& entity) {
    const Entity* const supertype = supertypeOf(entity);
    std::set<std::string> seen;
    const auto checkName = [&](const std::string& name) {
      if (!seen.insert(name).second || hasAttribute(supertype, name) ||
          hasInverse(supertype, name)) {
        fault(entity.name + "." + name + " is there twice");
      }
    };
    for (const Attribute& attribute : entity.attributes) checkName(attribute.name);
    for (const InverseAttribute& inverse : entity.inverses) checkName(inverse.name);
  }

  void checkInverse(const Entity& entity, const InverseAttribute& inverse) {
    const std::string name = entity.name + "." + inverse.name;
    const auto owner = m_entities.find(inverse.entity);
    if (owner == m_entities.end()) {
      fault(name + ": unknown entity " + inverse.entity);
    } else if (!hasAttribute(owner->second, inverse.forward)) {
      fault(name + ": " + inverse.entity + " has no attribute " + inverse.forward);
    }
  }

  const SchemaTable& m_table;
  std::map<std::string, const Entity*> m_entities;
  std::map<std::string, std::vector<std::string>> m_needs;  ///< All elements.
  std::set<std::string> m_open;
  std::set<std::string> m_done;
  std::string m_faults;
};

}  // namespace

void checkSchemaTable(const SchemaTable& table) { Check(table).run(); }

}  // namespace qor::schema
