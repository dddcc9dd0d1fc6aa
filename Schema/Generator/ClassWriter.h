#pragma once

#include <string>

#include "Schema/Generator/SchemaModel.h"

namespace qor::schema {

/// The class that is generated for an entity: its own, or for one whose final form is hand-written
/// the class of its attributes.
std::string generatedClassName(const SchemaModel& model, const Entity& entity);
/// The header of that class.
std::string classHeader(const SchemaModel& model, const Entity& entity);
/// The definitions of its tables and of what is too long for the header, for the source file of its
/// group.
std::string classSource(const SchemaModel& model, const Entity& entity);

}  // namespace qor::schema
