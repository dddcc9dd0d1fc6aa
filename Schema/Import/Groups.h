#pragma once

#include <iosfwd>
#include <map>
#include <string>

#include "Schema/SchemaTable.h"

namespace qor::schema {

/// The group of each element, by name: what EXPRESS doesn't tell.
using Groups = std::map<std::string, std::string>;

/// Adds the groups that a file gives: a schema table, or lines `name<TAB>group` with comment lines
/// that begin with `#`.
///
/// Throws std::runtime_error for a line that can't be read and for a name that has another group
/// already.
void readGroups(std::istream& in, Groups& groups);

/// Gives every element its group. Names that the table hasn't are passed over.
///
/// Throws std::runtime_error that names all elements without a group.
void assignGroups(SchemaTable& table, const Groups& groups);

}  // namespace qor::schema
