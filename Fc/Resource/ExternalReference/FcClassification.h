#pragma once

#include "Fc/Resource/ExternalReference/FcClassificationAttributes.h"
#include "Qor/DateTime/DateTime.h"

namespace qor::fc::resource::externalreference {

/// IfcClassification, Resource.External Reference: a system of classes.
class QOR_API FcClassification : public FcClassificationAttributes {
 public:
  using FcClassificationAttributes::setEditionDate;
  /// Empty while the attribute is absent or its text is no ISO 8601 date.
  std::optional<DateTime> getEditionDate() const;
  void setEditionDate(const DateTime& date);
};

}  // namespace qor::fc::resource::externalreference
