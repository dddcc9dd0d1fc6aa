#include "Qor/Object/PropertyId.h"

#include <map>
#include <mutex>

namespace qor::object {

const PropertyId& PropertyId::interned(std::string_view name) {
  // Never destroyed, since others may ask while the program ends.
  static std::mutex& mutex = *new std::mutex;
  static auto& ids = *new std::map<std::string, PropertyId, std::less<>>;
  const std::lock_guard lock(mutex);
  auto place = ids.find(name);
  if (place == ids.end()) place = ids.emplace(name, PropertyId(std::string(name))).first;
  return place->second;
}

}  // namespace qor::object
