#pragma once

#include <filesystem>
#include <string>

#include "Host/Cli/Console.h"

namespace qor::host::cli {

struct PropertiesOptions {
  std::filesystem::path file{};
  std::string guid{};  ///< of an object or type; empty for all
  bool json = false;
};

/// `fctool properties`: the property sets and quantities of an object, merged with those of its
/// type, of which an object's own hold where both have one. Numbers are in SI units.
///
/// Without a guid it shows all objects, types and contexts in the order of the file, then the
/// materials and profiles that have properties, then what belongs to none of these: each property
/// of the file appears.
///
/// As JSON: "file" and "objects", each as in `jsonLabel` with "sets", each with "id", "class",
/// "name" and "properties", each with "id", "class", "name", "depth" (of those inside complex ones
/// over 0), "fromType", "text" and "value" (see `propertyJson`). What belongs to no object has null
/// in its place.
ExitCode runProperties(const PropertiesOptions& options, Console& console);

}  // namespace qor::host::cli
