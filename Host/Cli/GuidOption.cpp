#include "Host/Cli/GuidOption.h"

#include <fmt/format.h>

#include "Host/Cli/LoadModel.h"
#include "Host/Cli/PrintableText.h"

namespace qor::host::cli {

using fc::core::kernel::FcRoot;

std::optional<Guid> guidFromText(const std::string& text, Console& console) {
  Guid guid;
  if (guid.boSet(text)) return guid;
  refuse(console, fmt::format("{} is no guid, which has 22 characters (0-9, A-Z, a-z, _, $) or 32 "
                              "hexadecimal digits with hyphens",
                              inQuotes(text)));
  return std::nullopt;
}

std::shared_ptr<FcRoot> findRoot(const step::ReadResult& model, const Guid& guid,
                                 const std::string& file, Console& console) {
  for (const step::NumberedEntity& instance : model.instances)
    if (auto root = fc::fcCast<FcRoot>(instance.entity); root && root->GlobalId() == guid)
      return root;
  refuse(console,
         fmt::format("{} has no entity with the guid {}", inQuotes(file), guid.toString(false)));
  return nullptr;
}

}  // namespace qor::host::cli
