#include <fstream>
#include <iostream>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

#include "Schema/Import/SchemaImport.h"

namespace {

using namespace qor::schema;

/// Hands the file to `read`; what goes wrong there gets the file's name.
template <class Read>
void withFile(const std::string& path, const Read& read) {
  std::ifstream in(path, std::ios::binary);
  if (!in) throw std::runtime_error(path + ": can't be opened");
  try {
    read(in);
  } catch (const std::runtime_error& error) {
    throw std::runtime_error(path + ": " + error.what());
  }
}

SchemaTable importFiles(const std::string& express, const std::vector<std::string>& groupFiles) {
  Groups groups;
  for (const std::string& path : groupFiles) {
    withFile(path, [&](std::istream& in) { readGroups(in, groups); });
  }
  SchemaTable table;
  withFile(express, [&](std::istream& in) {
    std::ostringstream text;
    text << in.rdbuf();
    table = importSchema(text.str(), groups);
  });
  return table;
}

}  // namespace

int main(int argc, char** argv) {
  const std::vector<std::string> arguments(argv + 1, argv + argc);
  if (arguments.size() < 3 || arguments[1] != "--groups") {
    std::cerr
        << "usage: schema_import SCHEMA.exp --groups FILE...\n"
           "Makes a schema table, written to standard output, from a schema in EXPRESS. The files "
           "tell the group of\neach element: schema tables, or lines of name, tab, group.\n";
    return 2;
  }
  try {
    writeSchemaTable(std::cout,
                     importFiles(arguments[0], {arguments.begin() + 2, arguments.end()}));
    if (!std::cout.flush()) throw std::runtime_error("the table can't be written");
  } catch (const std::exception& error) {
    std::cerr << error.what() << '\n';
    return 2;
  }
  return 0;
}
