#include "Host/Cli/RepresentationChoice.h"

#include <algorithm>
#include <string_view>

#include "Fc/Resource/Representation/FcRepresentation.h"
#include "Qor/String/IgnoreCase.h"

namespace qor::host::cli {

namespace {

using fc::resource::representation::FcRepresentation;

constexpr const char* body = "Body";
/// What stands beside a body and is none.
constexpr std::string_view noBodies[] = {
    "Annotation", "Axis",     "Boundary", "Box",     "Clearance", "CoG",     "FootPrint",
    "IAI",        "Lighting", "Plan",     "Profile", "Reference", "Surface", "WalkingLine"};

bool isCalled(const FcRepresentation& representation, std::string_view identifier) {
  const auto& own = representation.RepresentationIdentifier();
  return own && equalsIgnoreCase(*own, identifier);
}

}  // namespace

RepresentationChoice RepresentationChoice::bodies(const fc::Data& data) {
  const auto named = data.findFirst<FcRepresentation>(
      [](const FcRepresentation& representation) { return isCalled(representation, body); });
  return named ? RepresentationChoice(body) : RepresentationChoice();
}

bool RepresentationChoice::accepts(const FcRepresentation& representation) const {
  if (m_identifier) return isCalled(representation, *m_identifier);
  return std::none_of(std::begin(noBodies), std::end(noBodies), [&](std::string_view identifier) {
    return isCalled(representation, identifier);
  });
}

RepresentationChoice::Answer RepresentationChoice::representation(
    fc::FcGenerateParams&, const FcRepresentation& representation) {
  return {.generate = accepts(representation)};
}

}  // namespace qor::host::cli
