#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "Host/StepFile/StepReader.h"

namespace qor::test {

/// A STEP file whose data are these statements; they begin in line 4.
inline std::string stepFile(std::string_view statements, std::string_view schema = "IFC4X3_ADD2") {
  return "ISO-10303-21;HEADER;FILE_DESCRIPTION((''),'2;1');FILE_NAME('','',(''),(''),'','','');"
         "\nFILE_SCHEMA(('" +
         std::string(schema) + "'));ENDSEC;\nDATA;\n" + std::string(statements) +
         "\nENDSEC;\nEND-ISO-10303-21;\n";
}

inline host::step::ReadResult readStatements(std::string_view statements,
                                             std::string_view schema = "IFC4X3_ADD2") {
  return host::step::readStep(stepFile(statements, schema));
}

/// What was told about a file, a line each.
inline std::vector<std::string> messages(const host::step::ReadResult& result) {
  std::vector<std::string> texts;
  for (const host::step::Problem& problem : result.problems) texts.push_back(problem.toString());
  return texts;
}

}  // namespace qor::test
