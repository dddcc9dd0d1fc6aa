#include "Fc/Reflection/Links.h"

#include "Fc/Reflection/InverseEntries.h"

namespace qor::fc {

namespace {

// The inverse attributes of `target` that mirror `attribute`.
template <class Action>
void forEachInverse(const AttributeInfo& attribute, FcBase& target, Action&& action) {
  const std::uint32_t id = target.classId();
  for (const InverseLink& link : attribute.links)
    if (id >= link.first && id <= link.last)
      action(*static_cast<InverseEntries*>(link.inverse->of(target)), link.single);
}

std::weak_ptr<FcBase> ownedHolder(FcBase& holder) {
  std::weak_ptr<FcBase> owned = holder.weak_from_this();
  if (owned.expired()) throw std::bad_weak_ptr();
  return owned;
}

}  // namespace

void linkTarget(FcBase& holder, const AttributeInfo& attribute, FcBase& target) {
  forEachInverse(attribute, target, [&holder](InverseEntries& entries, bool single) {
    if (single)
      entries.replace(ownedHolder(holder));
    else
      entries.insert(ownedHolder(holder));
  });
}

void unlinkTarget(FcBase& holder, const AttributeInfo& attribute, FcBase& target) {
  forEachInverse(attribute, target, [&holder](InverseEntries& entries, bool single) {
    if (single)
      entries.clear();
    else
      entries.erase(ownedHolder(holder));
  });
}

void linkTargets(FcBase& holder, const AttributeInfo& attribute) {
  if (attribute.links.empty()) return;
  attribute.type->forEachTarget(attribute.of(std::as_const(holder)),
                                [&](FcBase& target) { linkTarget(holder, attribute, target); });
}

void unlinkTargets(FcBase& holder, const AttributeInfo& attribute) {
  if (attribute.links.empty()) return;
  attribute.type->forEachTarget(attribute.of(std::as_const(holder)),
                                [&](FcBase& target) { unlinkTarget(holder, attribute, target); });
}

}  // namespace qor::fc
