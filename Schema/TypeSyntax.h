#pragma once

#include <iosfwd>

#include "Schema/SchemaTable.h"

namespace qor::schema {

class TokenReader;

/// Whether it is one of the types that EXPRESS brings along ("REAL"), in capitals.
bool isBasicType(const std::string& name);

/// Reads a type as EXPRESS writes it: `LIST [1:?] OF UNIQUE IfcLabel`, `SET OF IfcRoot`,
/// `STRING(22) FIXED`. Throws what the reader throws, also for bounds that are no plain numbers.
TypeReference readTypeReference(TokenReader& tokens);

/// Reads what stands behind the name of an inverse attribute: `SET [0:?] OF IfcRelAssigns FOR
/// RelatedObjects`, without the collection for a single one.
InverseAttribute readInverseAttribute(TokenReader& tokens, const std::string& name);

/// Writes a type so that `readTypeReference` reads it again.
void writeTypeReference(std::ostream& out, const TypeReference& type);

/// Reads a group, "shared::buildingelements".
std::string readGroup(TokenReader& tokens);

}  // namespace qor::schema
