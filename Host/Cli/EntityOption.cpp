#include "Host/Cli/EntityOption.h"

#include <fmt/format.h>

#include <algorithm>
#include <string_view>

#include "Host/Cli/LoadModel.h"
#include "Host/Cli/PrintableText.h"
#include "Host/Cli/WholeNumber.h"

namespace qor::host::cli {

using fc::core::kernel::FcProduct;
using fc::core::kernel::FcRoot;

std::optional<Guid> guidFromText(const std::string& text, Console& console) {
  Guid guid;
  if (guid.boSet(text)) return guid;
  refuse(console, fmt::format("{} is no guid, which has 22 characters (0-9, A-Z, a-z, _, $) or 32 "
                              "hexadecimal digits with hyphens",
                              inQuotes(text)));
  return std::nullopt;
}

std::optional<std::uint64_t> idFromText(const std::string& text, Console& console) {
  const auto id = wholeNumber(std::string_view(text).substr(text.starts_with('#') ? 1 : 0));
  if (!id) refuse(console, fmt::format("{} is no number of an instance", inQuotes(text)));
  return id;
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

std::shared_ptr<FcProduct> findProduct(const step::ReadResult& model, const std::string& text,
                                       const std::string& file, Console& console) {
  const auto guid = guidFromText(text, console);
  const auto root = guid ? findRoot(model, *guid, file, console) : nullptr;
  auto product = fc::fcCast<FcProduct>(root);
  if (root && !product)
    refuse(console, fmt::format("{} {} is no product", text, root->ifcNameUpper()));
  return product;
}

std::shared_ptr<fc::FcBase> findEntity(const step::ReadResult& model, std::uint64_t id,
                                       const std::string& file, Console& console) {
  const auto found =
      std::find_if(model.instances.begin(), model.instances.end(),
                   [id](const step::NumberedEntity& instance) { return instance.number == id; });
  if (found == model.instances.end())
    refuse(console, fmt::format("{} has no instance #{}", inQuotes(file), id));
  else if (!found->entity)
    refuse(console, fmt::format("#{} of {} was left out of the model", id, inQuotes(file)));
  else
    return found->entity;
  return nullptr;
}

}  // namespace qor::host::cli
