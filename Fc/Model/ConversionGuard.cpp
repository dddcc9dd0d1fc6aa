#include "Fc/Model/ConversionGuard.h"

#include <algorithm>

#include "Fc/Model/Report.h"

namespace qor::fc {
namespace {

std::vector<const void*>& itemsUnderWay() {
  thread_local std::vector<const void*> items;
  return items;
}

const char* reasonToStop(const void* item) {
  const auto& items = itemsUnderWay();
  if (std::find(items.begin(), items.end(), item) != items.end())
    return "An item is part of itself";
  if (items.size() >= ConversionGuard::maximumDepth) return "Items are nested too deep";
  return nullptr;
}

}  // namespace

ConversionGuard::ConversionGuard(const void* item) {
  const char* const reason = reasonToStop(item);
  m_mayEnter = reason == nullptr;
  if (m_mayEnter)
    itemsUnderWay().push_back(item);
  else
    report(reason);
}

ConversionGuard::~ConversionGuard() {
  if (m_mayEnter) itemsUnderWay().pop_back();
}

}  // namespace qor::fc
