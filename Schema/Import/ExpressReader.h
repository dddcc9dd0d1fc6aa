#pragma once

#include <string_view>

#include "Schema/SchemaTable.h"

namespace qor::schema {

/// The data part of a schema in EXPRESS (ISO 10303-11): its types and entities. Rules, functions,
/// constants and what follows from them (computed attributes, WHERE, UNIQUE) are passed over.
///
/// All groups are empty, and nothing says that the names in the table are defined; see
/// `checkSchemaTable`. Throws std::runtime_error "line 12: …" for a text that breaks the grammar,
/// and for what the table can't hold: several supertypes, bounds that are expressions, an
/// attribute redeclared other than under DERIVE, schemas that use others.
SchemaTable readExpress(std::string_view text);

}  // namespace qor::schema
