#include "Fc/Resource/ExternalReference/FcClassification.h"

#include "Qor/DateTime/DateTimeFormat.h"

namespace qor::fc::resource::externalreference {

std::optional<DateTime> FcClassification::getEditionDate() const {
  return EditionDate() ? DateTimeFormat(DateTimeFormat::isoDate).fromString(*EditionDate())
                       : std::nullopt;
}

void FcClassification::setEditionDate(const DateTime& date) {
  setEditionDate(DateTimeFormat(DateTimeFormat::isoDate).toString(date));
}

}  // namespace qor::fc::resource::externalreference
