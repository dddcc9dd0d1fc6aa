#include "Fc/Reflection/MakeEntity.h"

#include <vector>

#include "Fc/FcBase.h"

namespace qor::fc {

namespace {

// A level of destruction takes some 200 bytes of stack.
constexpr int depthLimit = 500;

thread_local int depth = 0;
thread_local std::vector<std::shared_ptr<FcBase>> parked;

void park(const AttributeInfo& attribute, const FcBase& entity) {
  attribute.type->forEachEntity(attribute.of(entity), [](FcBase& target) {
    parked.push_back(target.weak_from_this().lock());
  });
}

}  // namespace

EntityRelease::EntityRelease(FcBase& entity) {
  if (++depth > depthLimit)
    entity.classInfo().forEachAttribute(
        [&entity](const AttributeInfo& attribute) { park(attribute, entity); });
}

EntityRelease::~EntityRelease() {
  // The outermost one stays at depth 1 meanwhile, so that what is released here doesn't come to
  // this loop again.
  while (depth == 1 && !parked.empty()) {
    const std::shared_ptr<FcBase> released = std::move(parked.back());
    parked.pop_back();
  }
  --depth;
}

}  // namespace qor::fc
