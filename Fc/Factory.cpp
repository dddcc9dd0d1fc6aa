#include "Fc/Factory.h"

#include <algorithm>
#include <string>

#include "Fc/FcBase.h"
#include "Fc/Reflection/SchemaTables.h"
#include "Qor/Assert/Report.h"

namespace qor::fc {

namespace {

void reportUnknown(const char* what, const StringHash& name,
                   const std::source_location& where = std::source_location::current()) {
  report(
      {.message = std::string(what) + " (" + std::string(name.view()) + ")", .source = "FcFactory"},
      where);
}

}  // namespace

std::shared_ptr<FcBase> Factory::objectFromIfcName(const StringHash& name) {
  const ClassInfo* info = find(name);
  if (info && !info->isAbstract()) return info->create();
  reportUnknown("Illegal class name or abstract class", name);
  return nullptr;
}

std::optional<std::type_index> Factory::typeInfoFromIfcName(const StringHash& name) {
  const ClassInfo* info = find(name);
  if (info && !info->isAbstract()) return *info->type;
  reportUnknown("Illegal class name or abstract class", name);
  return std::nullopt;
}

std::optional<std::pair<unsigned int, unsigned int>> Factory::boundFromIfcName(
    const StringHash& name) {
  if (const ClassInfo* info = find(name)) return std::pair(info->classId, info->classIdLast);
  reportUnknown("Illegal class name", name);
  return std::nullopt;
}

const std::map<std::type_index, StringHash>& Factory::getFcClasses() {
  static const std::map<std::type_index, StringHash> classesByType = [] {
    std::map<std::type_index, StringHash> result;
    for (const ClassInfo* info : classes())
      if (!info->isAbstract()) result.emplace(*info->type, info->name);
    return result;
  }();
  return classesByType;
}

std::span<const ClassInfo* const> Factory::classes() { return SchemaTables::classes(); }

const ClassInfo* Factory::find(const StringHash& name) {
  static const auto table = SchemaTables::classesByHash();
  const auto found = std::lower_bound(
      table.begin(), table.end(), name.hash,
      [](const SchemaTables::HashedClass& entry, std::uint32_t hash) { return entry.hash < hash; });
  return found != table.end() && found->hash == name.hash ? found->info : nullptr;
}

}  // namespace qor::fc
