#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace qor::host::step {

/// What a zip archive held, or why it can't be had: one of the two is empty.
struct ZippedModel {
  std::string text{};
  std::string failure{};
};

/// The bytes begin as a zip archive does.
bool isZip(std::string_view bytes);

/// Unpacks the one model of an archive (".ifczip"): the only file in it, or the only one whose name
/// ends with ".ifc". An archive with several, an encrypted one and one whose model has more than
/// `limit` bytes are refused; no more than that is unpacked, whatever sizes the archive claims.
ZippedModel unzipModel(std::string_view archive, std::uint64_t limit);

}  // namespace qor::host::step
