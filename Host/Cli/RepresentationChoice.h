#pragma once

#include <optional>
#include <string>

#include "Fc/Data.h"
#include "Fc/Drawing/GenerateFilters.h"

namespace qor::host::cli {

/// Which of a product's representations are drawn, by their identifiers.
class RepresentationChoice : public fc::RepresentationInterface {
 public:
  /// Those with this identifier, in any case: "Axis".
  explicit RepresentationChoice(std::string identifier) : m_identifier(std::move(identifier)) {}
  /// Those that show bodies: "Body", and where a model has none of that, all that don't say that
  /// they are something else.
  static RepresentationChoice bodies(const fc::Data& data);

  bool accepts(const fc::resource::representation::FcRepresentation& representation) const;
  Answer representation(
      fc::FcGenerateParams& params,
      const fc::resource::representation::FcRepresentation& representation) override;

 private:
  RepresentationChoice() = default;

  std::optional<std::string> m_identifier{};  // none: whatever may be a body
};

}  // namespace qor::host::cli
