#include "Qor/Localization/Dictionaries.h"

#include <algorithm>
#include <iterator>
#include <mutex>
#include <shared_mutex>

namespace qor::localization {

namespace {

struct Registered {
  std::shared_mutex mutex;
  std::vector<DictionaryContext> contexts;
};

Registered& registered() {
  static Registered instance;
  return instance;
}

}  // namespace

void Dictionaries::add(const DictionaryContext& context) {
  const std::unique_lock lock(registered().mutex);
  registered().contexts.push_back(context);
}

bool Dictionaries::remove(const DictionaryContext& context) {
  const std::unique_lock lock(registered().mutex);
  auto& contexts = registered().contexts;
  const auto found = std::ranges::find(contexts, context);
  if (found == contexts.end()) return false;
  contexts.erase(found);
  return true;
}

std::vector<DictionaryContext> Dictionaries::getContexts(std::string_view name) {
  const std::shared_lock lock(registered().mutex);
  std::vector<DictionaryContext> contexts;
  std::ranges::copy_if(registered().contexts, std::back_inserter(contexts),
                       [name](const DictionaryContext& context) { return context.name() == name; });
  return contexts;
}

}  // namespace qor::localization
