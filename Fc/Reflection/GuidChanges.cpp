#include "Fc/Reflection/GuidChanges.h"

#include <atomic>

namespace qor::fc {

namespace {

std::atomic<std::uint64_t> changes = 1;

}  // namespace

std::uint64_t guidChanges() { return changes.load(std::memory_order_relaxed); }

void noteGuidChange() { changes.fetch_add(1, std::memory_order_relaxed); }

}  // namespace qor::fc
