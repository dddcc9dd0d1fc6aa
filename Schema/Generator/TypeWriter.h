#pragma once

#include <string>

#include "Schema/Generator/SchemaModel.h"

namespace qor::schema {

/// The header of an enumeration's class.
std::string enumerationHeader(const SchemaModel& model, const Enumeration& enumeration);
/// The header of a defined type's class.
std::string definedTypeHeader(const SchemaModel& model, const DefinedType& type);
/// The class that the generator writes of a select: the base of a hand-written one.
std::string generatedSelectName(const SchemaModel& model, const Select& select);
/// The header of a select's class.
std::string selectHeader(const SchemaModel& model, const Select& select);
/// The definition of a select's table, for the source file of its group.
std::string selectTable(const SchemaModel& model, const Select& select);

}  // namespace qor::schema
