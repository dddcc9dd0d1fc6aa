#include "Schema/SchemaTable.h"

#include <algorithm>
#include <istream>
#include <ostream>

#include "Schema/SchemaCheck.h"
#include "Schema/TokenReader.h"
#include "Schema/TypeSyntax.h"

namespace qor::schema {
namespace {

constexpr const char* header =
    R"(-- The schema. An element is a line, `kind Name group`, with its members indented below it.
--   type         : what it stands on
--   enumeration  its enumerators, in order
--   select       its alternatives, in order
--   entity       : its supertype, unless it is a root; below, its own attributes in order, then
--                `inverse` the attributes that mirror an attribute of another entity, and
--                `derive` the attributes of supertypes that are computed here, not stored
)";

/// Takes the table's lines one by one. An indented line belongs to the last element.
class TableReader {
 public:
  void readLine(const std::string& text, int number) {
    TokenReader line(text, number);
    if (line.atEnd()) return;
    if (text.front() == ' ' || text.front() == '\t') {
      readMember(line);
    } else {
      readElement(line);
    }
    line.expectEnd();
  }

  SchemaTable take() {
    sortSchemaTable(m_table);
    return std::move(m_table);
  }

 private:
  enum class Kind { none, enumeration, select, entity };

  void readElement(TokenReader& line) {
    m_last = Kind::none;
    if (line.accept("schema")) {
      m_table.name = line.identifier("the name of the schema");
    } else if (line.accept("type")) {
      readDefinedType(line);
    } else if (line.accept("enumeration")) {
      m_last = Kind::enumeration;
      readHead(line, m_table.enumerations.emplace_back());
    } else if (line.accept("select")) {
      m_last = Kind::select;
      readHead(line, m_table.selects.emplace_back());
    } else {
      m_last = Kind::entity;
      readEntity(line);
    }
  }

  void readMember(TokenReader& line) {
    switch (m_last) {
      case Kind::none:
        line.fail("this line is indented, but there is no element above it that has members");
      case Kind::enumeration:
        m_table.enumerations.back().enumerators.push_back(line.identifier("an enumerator"));
        break;
      case Kind::select:
        m_table.selects.back().members.push_back(line.identifier("an alternative"));
        break;
      case Kind::entity:
        readEntityMember(line, m_table.entities.back());
        break;
    }
  }

  template <class Element>
  static void readHead(TokenReader& line, Element& element) {
    element.name = line.identifier("a name");
    element.group = readGroup(line);
  }

  void readDefinedType(TokenReader& line) {
    DefinedType& type = m_table.definedTypes.emplace_back();
    readHead(line, type);
    line.expect(":");
    type.underlying = readTypeReference(line);
  }

  void readEntity(TokenReader& line) {
    Entity& entity = m_table.entities.emplace_back();
    entity.abstract = line.accept("abstract");
    if (!line.accept("entity")) line.failExpecting("a kind of element");
    readHead(line, entity);
    if (line.accept(":")) entity.supertype = line.identifier("a supertype");
  }

  static void readEntityMember(TokenReader& line, Entity& entity) {
    if (line.accept("inverse")) {
      const std::string name = line.identifier("the name of an attribute");
      entity.inverses.push_back(readInverseAttribute(line, name));
    } else if (line.accept("derive")) {
      entity.derived.push_back(line.identifier("the name of an attribute"));
    } else {
      Attribute& attribute = entity.attributes.emplace_back();
      attribute.name = line.identifier("the name of an attribute");
      attribute.optional = line.accept("OPTIONAL");
      attribute.type = readTypeReference(line);
    }
  }

  SchemaTable m_table;
  Kind m_last = Kind::none;
};

template <class Element>
void writeHead(std::ostream& out, const char* kind, const Element& element) {
  out << kind << ' ' << element.name << ' ' << element.group;
}

void write(std::ostream& out, const DefinedType& type) {
  writeHead(out, "type", type);
  out << " : ";
  writeTypeReference(out, type.underlying);
  out << '\n';
}

void write(std::ostream& out, const Enumeration& enumeration) {
  writeHead(out, "\nenumeration", enumeration);
  out << '\n';
  for (const std::string& enumerator : enumeration.enumerators) out << "  " << enumerator << '\n';
}

void write(std::ostream& out, const Select& select) {
  writeHead(out, "\nselect", select);
  out << '\n';
  for (const std::string& member : select.members) out << "  " << member << '\n';
}

void write(std::ostream& out, const Attribute& attribute) {
  out << "  " << attribute.name << (attribute.optional ? " OPTIONAL " : " ");
  writeTypeReference(out, attribute.type);
  out << '\n';
}

void write(std::ostream& out, const InverseAttribute& inverse) {
  TypeReference type{{}, inverse.entity};
  if (inverse.aggregate) type.aggregates.push_back(*inverse.aggregate);
  out << "  inverse " << inverse.name << ' ';
  writeTypeReference(out, type);
  out << " FOR " << inverse.forward << '\n';
}

void write(std::ostream& out, const Entity& entity) {
  writeHead(out, entity.abstract ? "\nabstract entity" : "\nentity", entity);
  if (!entity.supertype.empty()) out << " : " << entity.supertype;
  out << '\n';
  for (const Attribute& attribute : entity.attributes) write(out, attribute);
  for (const InverseAttribute& inverse : entity.inverses) write(out, inverse);
  for (const std::string& attribute : entity.derived) out << "  derive " << attribute << '\n';
}

template <class Element>
void sortByName(std::vector<Element>& elements) {
  std::stable_sort(elements.begin(), elements.end(),
                   [](const Element& a, const Element& b) { return a.name < b.name; });
}

}  // namespace

SchemaTable readSchemaTable(std::istream& in) {
  TableReader reader;
  std::string line;
  for (int number = 1; std::getline(in, line); ++number) reader.readLine(line, number);
  SchemaTable table = reader.take();
  checkSchemaTable(table);
  return table;
}

void writeSchemaTable(std::ostream& out, const SchemaTable& table) {
  out << header << "\nschema " << table.name << "\n\n";
  for (const DefinedType& type : table.definedTypes) write(out, type);
  for (const Enumeration& enumeration : table.enumerations) write(out, enumeration);
  for (const Select& select : table.selects) write(out, select);
  for (const Entity& entity : table.entities) write(out, entity);
}

void sortSchemaTable(SchemaTable& table) {
  sortByName(table.entities);
  sortByName(table.definedTypes);
  sortByName(table.enumerations);
  sortByName(table.selects);
}

}  // namespace qor::schema
