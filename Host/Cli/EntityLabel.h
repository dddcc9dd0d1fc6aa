#pragma once

#include <cstdint>
#include <nlohmann/json_fwd.hpp>
#include <optional>
#include <string>

#include "Fc/FcBase.h"
#include "Qor/Id/Guid.h"

namespace qor::host::cli {

/// The attribute "Name" of an entity of any class; empty where it has none or it isn't set.
std::optional<std::string> nameOf(const fc::FcBase& entity);

/// "#12 IFCWALL 'South wall'", in one line; "IFCWALL 'South wall'" without a number.
std::string label(const fc::FcBase& entity, std::optional<std::uint64_t> number);

/// {"id": 12, "class": "IFCWALL", "guid": "1ND...", "name": "South wall"}; what an entity doesn't
/// have is left out.
nlohmann::ordered_json jsonLabel(const fc::FcBase& entity, std::uint64_t number);

/// Without any white space between its parts.
std::string toLine(const nlohmann::ordered_json& json);

/// Indented by two spaces, with a line feed at the end.
std::string toText(const nlohmann::ordered_json& json);

}  // namespace qor::host::cli
