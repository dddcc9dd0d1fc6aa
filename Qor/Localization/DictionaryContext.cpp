#include "Qor/Localization/DictionaryContext.h"

#include <utility>

namespace qor::localization {

struct DictionaryContext::Content {
  std::string name;
  Dictionary texts;
};

DictionaryContext::DictionaryContext(std::string name, Dictionary texts)
    : m_content(std::make_shared<const Content>(Content{std::move(name), std::move(texts)})) {}

const std::string& DictionaryContext::name() const { return m_content->name; }

std::optional<std::string> DictionaryContext::text(std::string_view key) const {
  const auto found = m_content->texts.find(key);
  if (found == m_content->texts.end()) return std::nullopt;
  return found->second;
}

}  // namespace qor::localization
