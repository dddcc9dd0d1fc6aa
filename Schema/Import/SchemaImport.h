#pragma once

#include <string_view>

#include "Schema/Import/Groups.h"
#include "Schema/SchemaTable.h"

namespace qor::schema {

/// The complete table of a schema in EXPRESS, every element in its group.
///
/// Throws what `readExpress`, `checkSchemaTable` and `assignGroups` throw.
SchemaTable importSchema(std::string_view express, const Groups& groups);

}  // namespace qor::schema
