#pragma once

#include <string>
#include <string_view>

namespace qor::schema {

/// A group of the schema in its three spellings. The group itself is named by its namespace below
/// `qor::fc`, "shared::buildingelements".
struct Group {
  std::string_view name;
  std::string_view title;  ///< "Building Elements"
  std::string_view path;   ///< "Shared.Building Elements"

  /// The folder of its files below the engine's root: "Shared/BuildingElements".
  std::string folder() const;
  /// The source file of its classes, without a folder: "shared-buildingelements.cpp".
  std::string sourceFile() const;
};

/// Throws std::runtime_error for a name that is no group.
const Group& groupNamed(std::string_view name);

}  // namespace qor::schema
