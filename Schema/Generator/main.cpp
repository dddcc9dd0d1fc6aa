// schema_generate TABLE HANDWRITTEN FOLDER: makes the C++ of the schema classes from the schema
// table.
#include <fmt/format.h>

#include <exception>
#include <fstream>
#include <iostream>
#include <set>

#include "Schema/Generator/ClassWriter.h"
#include "Schema/Generator/HeaderText.h"
#include "Schema/Generator/OutputFolder.h"
#include "Schema/Generator/SharedWriter.h"
#include "Schema/Generator/TypeWriter.h"

namespace qor::schema {
namespace {

std::ifstream opened(const char* file) {
  std::ifstream in(file, std::ios::binary);
  if (!in) throw std::runtime_error(fmt::format("can't read {}", file));
  return in;
}

std::set<std::string> readNames(std::istream& in) {
  std::set<std::string> names;
  for (std::string line; std::getline(in, line);)
    if (!line.empty() && line[0] != '#') names.insert(line);
  return names;
}

void generate(const SchemaModel& model, OutputFolder out) {
  std::set<std::string_view> groups;
  for (const Enumeration& element : model.table().enumerations)
    out.write(headerOf(model, element.name), enumerationHeader(model, element));
  for (const DefinedType& element : model.table().definedTypes)
    out.write(headerOf(model, element.name), definedTypeHeader(model, element));
  for (const Select& element : model.table().selects)
    out.write(fmt::format("Fc/{}/{}.h", groupNamed(element.group).folder(),
                          generatedSelectName(model, element)),
              selectHeader(model, element));
  for (const Entity& element : model.table().entities) {
    const Group& group = groupNamed(element.group);
    groups.insert(group.name);
    out.write(fmt::format("Fc/{}/{}.h", group.folder(), generatedClassName(model, element)),
              classHeader(model, element));
  }
  for (const std::string_view name : groups) {
    const Group& group = groupNamed(name);
    out.write(fmt::format("Fc/Sources/{}", group.sourceFile()), groupSource(model, group));
  }
  for (const bool isConst : {true, false}) {
    const std::string name = isConst ? "FcVisitorBase" : "FcVisitorBaseNonConst";
    out.write(fmt::format("Fc/{}.h", name), visitorHeader(model, isConst));
    out.write(fmt::format("Fc/Sources/{}.cpp", name), visitorSource(model, isConst));
  }
  out.write("Fc/Sources/SchemaTables.cpp", schemaTablesSource(model));
  out.removeOldHeaders();
}

}  // namespace
}  // namespace qor::schema

int main(int argc, char** argv) try {
  using namespace qor::schema;
  if (argc != 4) throw std::runtime_error("usage: schema_generate TABLE HANDWRITTEN FOLDER");
  auto table = opened(argv[1]);
  auto handWritten = opened(argv[2]);
  generate(SchemaModel(readSchemaTable(table), readNames(handWritten)), OutputFolder(argv[3]));
  return 0;
} catch (const std::exception& error) {
  std::cerr << "schema_generate: " << error.what() << '\n';
  return 2;
}
