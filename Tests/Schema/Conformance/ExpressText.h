#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <vector>

namespace qor::schema::test {

using Texts = std::vector<std::string>;

/// One entity of an EXPRESS schema; attributes as they are declared, with spaces between words
/// only and without UNIQUE and string widths: "Name:OPTIONAL SET[1:?]OF IfcLabel".
struct ExpressClass {
  std::string supertype;
  bool isAbstract = false;
  Texts attributes;
  Texts inverses;  ///< "Types:SET[0:1]OF IfcRelDefinesByType FOR RelatingType"
  Texts derived;   ///< The names of the supertypes' attributes that are derived here.
};

struct ExpressText {
  std::map<std::string, ExpressClass> classes;
  std::map<std::string, Texts> enumerations;
  std::map<std::string, Texts> selects;
  std::map<std::string, std::string> types;  ///< "IfcLabel" to "STRING"
};

/// What an EXPRESS schema declares, read with none of the code under test.
ExpressText readExpressText(const std::filesystem::path& path);

}  // namespace qor::schema::test
