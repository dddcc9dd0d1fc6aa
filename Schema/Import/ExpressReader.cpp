#include "Schema/Import/ExpressReader.h"

#include <algorithm>
#include <array>

#include "Schema/TokenReader.h"
#include "Schema/TypeSyntax.h"

namespace qor::schema {
namespace {

constexpr std::array<const char*, 5> skippedDeclarations = {"FUNCTION", "RULE", "PROCEDURE",
                                                            "CONSTANT", "SUBTYPE_CONSTRAINT"};

class ExpressReader {
 public:
  explicit ExpressReader(std::string_view text) : m_tokens(text) {}

  SchemaTable read() {
    m_tokens.expect("SCHEMA");
    m_table.name = m_tokens.identifier("the name of the schema");
    m_tokens.expect(";");
    while (!m_tokens.accept("END_SCHEMA")) readDeclaration();
    m_tokens.expect(";");
    m_tokens.expectEnd();
    sortSchemaTable(m_table);
    return std::move(m_table);
  }

 private:
  void readDeclaration() {
    if (m_tokens.accept("TYPE")) {
      readType();
    } else if (m_tokens.accept("ENTITY")) {
      readEntity();
    } else if (!skipDeclaration()) {
      m_tokens.failExpecting("a declaration");
    }
  }

  bool skipDeclaration() {
    const auto kind = std::find_if(skippedDeclarations.begin(), skippedDeclarations.end(),
                                   [this](const char* word) { return m_tokens.accept(word); });
    if (kind == skippedDeclarations.end()) return false;
    skipBody(*kind);
    return true;
  }

  /// Goes behind the END_ of a declaration, which may hold others of its kind.
  void skipBody(const std::string& kind) {
    const std::string end = "END_" + kind;
    for (int depth = 1; depth > 0; m_tokens.skip()) {
      if (m_tokens.atEnd()) m_tokens.failExpecting(end);
      depth += m_tokens.at(kind) ? 1 : m_tokens.at(end) ? -1 : 0;
    }
    m_tokens.expect(";");
  }

  void readType() {
    const std::string name = m_tokens.identifier("the name of a type");
    m_tokens.expect("=");
    if (m_tokens.accept("ENUMERATION")) {
      m_tokens.expect("OF");
      m_table.enumerations.push_back({name, {}, readNames("an enumerator")});
    } else if (m_tokens.accept("SELECT")) {
      m_table.selects.push_back({name, {}, readNames("an alternative")});
    } else {
      m_table.definedTypes.push_back({name, {}, readTypeReference(m_tokens)});
    }
    m_tokens.expect(";");
    readEnd("END_TYPE");
  }

  /// What may follow behind the data, and the end itself.
  void readEnd(const char* end) {
    if (m_tokens.at("UNIQUE") || m_tokens.at("WHERE")) {
      m_tokens.skipPast(end);
    } else {
      m_tokens.expect(end);
    }
    m_tokens.expect(";");
  }

  std::vector<std::string> readNames(const char* what) {
    std::vector<std::string> names;
    m_tokens.expect("(");
    do {
      names.push_back(m_tokens.identifier(what));
    } while (m_tokens.accept(","));
    m_tokens.expect(")");
    return names;
  }

  void readEntity() {
    Entity entity;
    entity.name = m_tokens.identifier("the name of an entity");
    readSupertypes(entity);
    while (!atSection()) readAttributes(entity);
    if (m_tokens.accept("DERIVE")) {
      while (!atSection()) readDerivation(entity);
    }
    if (m_tokens.accept("INVERSE")) {
      while (!atSection()) readInverse(entity);
    }
    readEnd("END_ENTITY");
    m_table.entities.push_back(std::move(entity));
  }

  bool atSection() const {
    return m_tokens.atEnd() || m_tokens.at("DERIVE") || m_tokens.at("INVERSE") ||
           m_tokens.at("UNIQUE") || m_tokens.at("WHERE") || m_tokens.at("END_ENTITY");
  }

  void readSupertypes(Entity& entity) {
    entity.abstract = m_tokens.accept("ABSTRACT");
    if (m_tokens.accept("SUPERTYPE") && m_tokens.accept("OF")) skipParentheses();
    if (m_tokens.accept("SUBTYPE")) {
      m_tokens.expect("OF");
      const std::vector<std::string> supertypes = readNames("a supertype");
      if (supertypes.size() > 1) m_tokens.fail(entity.name + " has several supertypes");
      entity.supertype = supertypes.front();
    }
    m_tokens.expect(";");
  }

  void skipParentheses() {
    if (!m_tokens.at("(")) m_tokens.failExpecting("'('");
    int depth = 0;
    do {
      if (m_tokens.atEnd()) m_tokens.failExpecting("')'");
      depth += m_tokens.at("(") ? 1 : m_tokens.at(")") ? -1 : 0;
      m_tokens.skip();
    } while (depth > 0);
  }

  /// The name of an attribute that the entity declares itself.
  std::string readAttributeName(const Entity& entity) {
    if (m_tokens.at("SELF")) {
      m_tokens.fail(entity.name + " redeclares an attribute other than under DERIVE");
    }
    return m_tokens.identifier("the name of an attribute");
  }

  void readAttributes(Entity& entity) {
    std::vector<std::string> names;
    do {
      names.push_back(readAttributeName(entity));
    } while (m_tokens.accept(","));
    m_tokens.expect(":");
    const bool optional = m_tokens.accept("OPTIONAL");
    const TypeReference type = readTypeReference(m_tokens);
    m_tokens.expect(";");
    for (const std::string& name : names) entity.attributes.push_back({name, type, optional});
  }

  /// `SELF\IfcX.Attribute : …;` is kept, a computed attribute of the entity's own isn't.
  void readDerivation(Entity& entity) {
    if (m_tokens.accept("SELF")) {
      m_tokens.expect("\\");
      m_tokens.identifier("a supertype");
      m_tokens.expect(".");
      entity.derived.push_back(m_tokens.identifier("the name of an attribute"));
    }
    m_tokens.skipPast(";");
  }

  void readInverse(Entity& entity) {
    const std::string name = readAttributeName(entity);
    m_tokens.expect(":");
    entity.inverses.push_back(readInverseAttribute(m_tokens, name));
    m_tokens.expect(";");
  }

  TokenReader m_tokens;
  SchemaTable m_table;
};

}  // namespace

SchemaTable readExpress(std::string_view text) { return ExpressReader(text).read(); }

}  // namespace qor::schema
