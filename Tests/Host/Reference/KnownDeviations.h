#pragma once

#include <string_view>
#include <vector>

namespace qor::test {

/// Products of a model whose measures differ from the reference for a reason that is known.
struct KnownDeviation {
  std::string_view model;    ///< name of the file without its ending
  std::string_view product;  ///< a guid, or a class for all products of it that draw nothing
  std::string_view cause;
  /// Will go when the engine can do more, and may be gone already.
  bool isPending = false;
};

const std::vector<KnownDeviation>& knownDeviations();

}  // namespace qor::test
