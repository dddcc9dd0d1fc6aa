#pragma once

#include "Schema/SchemaTable.h"

namespace qor::schema {

/// Makes sure that the table hangs together, so that no one who walks it has to ask: every name is
/// defined, and once; supertypes, defined types and selects have no circles; an inverse attribute
/// mirrors an attribute that exists; what an entity derives is an attribute of a supertype.
///
/// Throws std::runtime_error with a line for each fault, naming the element:
/// "IfcWall.PredefinedType: unknown type IfcWallTypeEnum". Groups are not looked at.
void checkSchemaTable(const SchemaTable& table);

}  // namespace qor::schema
