#pragma once

#include <string>

#include "Qor/Platform/Export.h"

namespace qor::classification {

/// A classification system, such as a table of building elements with their codes, that the host
/// supplies. An empty text says that there is nothing to tell.
class QOR_API ClassificationInterface {
 public:
  virtual ~ClassificationInterface() = default;

  virtual std::string getName() const = 0;
  virtual std::string getDescription() const = 0;
  /// ISO 8601: "2024-05-31".
  virtual std::string getEditionDate() const = 0;

  /// What stands behind a code; all empty for a code that the system doesn't know.
  virtual std::string getReferenceName(const std::string& code) const = 0;
  virtual std::string getReferenceDescription(const std::string& code) const = 0;
  /// Where the reference can be looked up, as a rule a web address.
  virtual std::string getReferenceLocation(const std::string& code) const = 0;
  /// The key that references are sorted by for people.
  virtual std::string getReferenceSort(const std::string& code) const = 0;
};

}  // namespace qor::classification
