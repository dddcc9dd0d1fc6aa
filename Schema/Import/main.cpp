#include <CLI/CLI.hpp>
#include <fstream>
#include <iostream>
#include <sstream>

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
  CLI::App app("Makes a schema table, written to standard output, from a schema in EXPRESS.");
  std::string express;
  std::vector<std::string> groupFiles;
  app.add_option("EXPRESS", express, "The schema")->required();
  app.add_option("--groups", groupFiles,
                 "The group of each element: schema tables, or lines of name, tab, group")
      ->required();
  CLI11_PARSE(app, argc, argv);
  try {
    writeSchemaTable(std::cout, importFiles(express, groupFiles));
    if (!std::cout.flush()) throw std::runtime_error("the table can't be written");
  } catch (const std::exception& error) {
    std::cerr << error.what() << '\n';
    return 2;
  }
  return 0;
}
