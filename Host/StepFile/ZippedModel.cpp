#include "Host/StepFile/ZippedModel.h"

#include <fmt/core.h>
#include <zip.h>

#include <algorithm>
#include <cstddef>
#include <memory>
#include <vector>

#include "Qor/String/IgnoreCase.h"

namespace qor::host::step {

namespace {

constexpr std::string_view signature = "PK\x03\x04";

struct Discard {
  void operator()(zip_t* archive) const { zip_discard(archive); }
  void operator()(zip_file_t* file) const { zip_fclose(file); }
};
using Archive = std::unique_ptr<zip_t, Discard>;
using File = std::unique_ptr<zip_file_t, Discard>;

Archive openArchive(std::string_view bytes) {
  zip_error_t error;
  zip_error_init(&error);
  zip_source_t* source = zip_source_buffer_create(bytes.data(), bytes.size(), 0, &error);
  Archive archive(source ? zip_open_from_source(source, ZIP_RDONLY, &error) : nullptr);
  if (source && !archive) zip_source_free(source);
  zip_error_fini(&error);
  return archive;
}

bool isModel(std::string_view name) {
  constexpr std::string_view ending = ".ifc";
  return name.size() >= ending.size() &&
         equalsIgnoreCase(name.substr(name.size() - ending.size()), ending);
}

/// Folders, and what one system of computers puts into its archives beside the files.
bool isNoFile(std::string_view name) {
  return name.ends_with('/') || name.starts_with("__MACOSX/");
}

/// The positions of the files that may be the model.
std::vector<zip_uint64_t> candidates(zip_t* archive) {
  std::vector<zip_uint64_t> files;
  std::vector<zip_uint64_t> models;
  const auto count =
      static_cast<zip_uint64_t>(std::max<zip_int64_t>(zip_get_num_entries(archive, 0), 0));
  for (zip_uint64_t i = 0; i < count; ++i) {
    const char* name = zip_get_name(archive, i, 0);
    if (!name || isNoFile(name)) continue;
    files.push_back(i);
    if (isModel(name)) models.push_back(i);
  }
  return models.empty() ? files : models;
}

/// Empty text and failure for a file that can't be unpacked.
ZippedModel unpack(zip_t* archive, zip_uint64_t position, std::uint64_t limit) {
  ZippedModel result;
  const File file(zip_fopen_index(archive, position, 0));
  std::vector<char> piece(std::size_t{1} << 20);
  zip_int64_t length = file ? 1 : -1;
  while (length > 0) {
    length = zip_fread(file.get(), piece.data(), piece.size());
    if (length <= 0) break;
    result.text.append(piece.data(), static_cast<std::size_t>(length));
    if (result.text.size() > limit)
      return {{}, fmt::format("it is a ZIP archive whose model has more than {} bytes", limit)};
  }
  if (length < 0) return {{}, "it is a ZIP archive whose model is broken or encrypted"};
  return result;
}

}  // namespace

bool isZip(std::string_view bytes) { return bytes.starts_with(signature); }

ZippedModel unzipModel(std::string_view bytes, std::uint64_t limit) {
  const Archive archive = openArchive(bytes);
  if (!archive) return {{}, "it is a ZIP archive that is broken"};
  const std::vector<zip_uint64_t> files = candidates(archive.get());
  if (files.size() != 1)
    return {{},
            fmt::format("it is a ZIP archive with {} files, of which one must be the model",
                        files.size())};
  ZippedModel result = unpack(archive.get(), files.front(), limit);
  if (result.text.empty() && result.failure.empty()) result.failure = "its model is empty";
  return result;
}

}  // namespace qor::host::step
