#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "Qor/Platform/Export.h"

namespace qor::localization {

/// Text by key.
using Dictionary = std::map<std::string, std::string, std::less<>>;

/// One dictionary under the name of the domain it serves, such as "IFC". A handle: copies are
/// cheap, are equal, and keep the texts alive also when the dictionary is withdrawn from
/// `Dictionaries`.
class QOR_API DictionaryContext {
 public:
  DictionaryContext(std::string name, Dictionary texts);

  const std::string& name() const;
  /// Empty when the dictionary has no such key.
  std::optional<std::string> text(std::string_view key) const;

  friend bool operator==(const DictionaryContext&, const DictionaryContext&) = default;

 private:
  struct Content;
  std::shared_ptr<const Content> m_content;
};

}  // namespace qor::localization
