#pragma once

#include <string_view>
#include <vector>

namespace qor::test {

/// A product of a model whose measures differ from the reference for a reason that is known.
struct KnownDeviation {
  std::string_view model;  ///< name of the file without its ending
  std::string_view guid;
  std::string_view cause;
};

const std::vector<KnownDeviation>& knownDeviations();

}  // namespace qor::test
