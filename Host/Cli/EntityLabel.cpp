#include "Host/Cli/EntityLabel.h"

#include <fmt/format.h>

#include <nlohmann/json.hpp>
#include <variant>

#include "Fc/Core/Kernel/FcRoot.h"
#include "Host/Cli/PrintableText.h"

namespace qor::host::cli {

using fc::core::kernel::FcRoot;

std::optional<std::string> nameOf(const fc::FcBase& entity) {
  if (const auto* root = fc::fcCast<FcRoot>(&entity)) return root->Name();
  const fc::AttributeInfo* attribute = entity.classInfo().findAttribute("Name");
  if (!attribute) return std::nullopt;
  fc::LocalValue value = attribute->type->getLocalValue(attribute->of(entity));
  auto* text = std::get_if<std::string>(&value.value);
  return text ? std::optional(std::move(*text)) : std::nullopt;
}

std::string label(const fc::FcBase& entity, std::optional<std::uint64_t> number) {
  const std::optional<std::string> name = nameOf(entity);
  return fmt::format("{}{}{}", number ? fmt::format("#{} ", *number) : "", entity.ifcNameUpper(),
                     name ? " " + inQuotes(*name) : std::string());
}

nlohmann::ordered_json jsonLabel(const fc::FcBase& entity, std::uint64_t number) {
  nlohmann::ordered_json json{{"id", number}, {"class", entity.ifcNameUpper()}};
  if (const auto* root = fc::fcCast<FcRoot>(&entity))
    json["guid"] = root->GlobalId().toString(false);
  if (auto name = nameOf(entity)) json["name"] = std::move(*name);
  return json;
}

std::string toLine(const nlohmann::ordered_json& json) {
  return json.dump(-1, ' ', false, nlohmann::ordered_json::error_handler_t::replace);
}

std::string toText(const nlohmann::ordered_json& json) {
  return json.dump(2, ' ', false, nlohmann::ordered_json::error_handler_t::replace) + "\n";
}

}  // namespace qor::host::cli
