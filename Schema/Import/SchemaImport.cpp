#include "Schema/Import/SchemaImport.h"

#include "Schema/Import/ExpressReader.h"
#include "Schema/SchemaCheck.h"

namespace qor::schema {

SchemaTable importSchema(std::string_view express, const Groups& groups) {
  SchemaTable table = readExpress(express);
  checkSchemaTable(table);
  assignGroups(table, groups);
  return table;
}

}  // namespace qor::schema
