#pragma once

#include <string>
#include <vector>

namespace qor::host::step {

/// What the header of a STEP file says about it. Texts are UTF-8.
struct Header {
  std::vector<std::string> description{};
  std::string implementationLevel = "2;1";
  std::string name{};
  std::string timeStamp{};  ///< ISO 8601, "2025-01-31T12:00:00"
  std::vector<std::string> author{};
  std::vector<std::string> organization{};
  std::string preprocessorVersion{};
  std::string originatingSystem{};
  std::string authorization{};
  /// The names of the schemas, as a rule one: "IFC4X3_ADD2".
  std::vector<std::string> schemas{};
};

}  // namespace qor::host::step
