#pragma once

#include <string>

#include "Schema/Generator/SchemaModel.h"

namespace qor::schema {

/// The source file with all tables of one group's classes and selects.
std::string groupSource(const SchemaModel& model, const Group& group);

/// The visitor of all classes, `name` being "FcVisitorBase" (const entities) or
/// "FcVisitorBaseNonConst".
std::string visitorHeader(const SchemaModel& model, bool isConst);
std::string visitorSource(const SchemaModel& model, bool isConst);

/// The tables that the factory and the list of types search.
std::string schemaTablesSource(const SchemaModel& model);

}  // namespace qor::schema
