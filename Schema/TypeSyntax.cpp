#include "Schema/TypeSyntax.h"

#include <algorithm>
#include <array>
#include <ostream>

#include "Schema/TokenReader.h"

namespace qor::schema {
namespace {

constexpr std::array<const char*, 7> basicTypes = {"REAL",    "NUMBER",  "INTEGER", "STRING",
                                                   "BOOLEAN", "LOGICAL", "BINARY"};
// In the order of Aggregate::Kind.
constexpr std::array<const char*, 4> aggregateKinds = {"LIST", "SET", "ARRAY", "BAG"};

void readBounds(TokenReader& tokens, Aggregate& aggregate) {
  if (!tokens.accept("[")) return;
  aggregate.lower = tokens.number();
  tokens.expect(":");
  if (!tokens.accept("?")) {
    aggregate.upper = tokens.number();
    if (*aggregate.upper < aggregate.lower) tokens.fail("the upper bound is below the lower one");
  }
  tokens.expect("]");
}

bool readAggregate(TokenReader& tokens, std::vector<Aggregate>& aggregates) {
  const auto kind = std::find_if(aggregateKinds.begin(), aggregateKinds.end(),
                                 [&](const char* word) { return tokens.accept(word); });
  if (kind == aggregateKinds.end()) return false;
  Aggregate aggregate;
  aggregate.kind = static_cast<Aggregate::Kind>(kind - aggregateKinds.begin());
  readBounds(tokens, aggregate);
  tokens.expect("OF");
  aggregate.unique = tokens.accept("UNIQUE");
  aggregates.push_back(aggregate);
  return true;
}

void skipWidth(TokenReader& tokens) {
  if (tokens.accept("(")) {
    tokens.number();
    tokens.expect(")");
  }
  tokens.accept("FIXED");
}

}  // namespace

bool isBasicType(const std::string& name) {
  return std::find(basicTypes.begin(), basicTypes.end(), name) != basicTypes.end();
}

TypeReference readTypeReference(TokenReader& tokens) {
  TypeReference type;
  while (readAggregate(tokens, type.aggregates)) {
  }
  const auto basic = std::find_if(basicTypes.begin(), basicTypes.end(),
                                  [&](const char* word) { return tokens.accept(word); });
  if (basic == basicTypes.end()) {
    type.name = tokens.identifier("a type");
  } else {
    type.name = *basic;
    skipWidth(tokens);
  }
  return type;
}

InverseAttribute readInverseAttribute(TokenReader& tokens, const std::string& name) {
  const TypeReference type = readTypeReference(tokens);
  if (type.aggregates.size() > 1) tokens.fail(name + " is a collection of collections");
  InverseAttribute inverse;
  inverse.name = name;
  if (!type.aggregates.empty()) inverse.aggregate = type.aggregates.front();
  inverse.entity = type.name;
  tokens.expect("FOR");
  inverse.forward = tokens.identifier("the name of an attribute");
  return inverse;
}

void writeTypeReference(std::ostream& out, const TypeReference& type) {
  for (const Aggregate& aggregate : type.aggregates) {
    out << aggregateKinds[static_cast<std::size_t>(aggregate.kind)] << " [" << aggregate.lower
        << ':';
    if (aggregate.upper) {
      out << *aggregate.upper;
    } else {
      out << '?';
    }
    out << "] OF " << (aggregate.unique ? "UNIQUE " : "");
  }
  out << type.name;
}

std::string readGroup(TokenReader& tokens) {
  std::string group = tokens.identifier("a group");
  while (tokens.accept("::")) group += "::" + tokens.identifier("a group");
  return group;
}

}  // namespace qor::schema
