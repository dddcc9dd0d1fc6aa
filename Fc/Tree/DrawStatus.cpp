#include "Fc/Tree/DrawStatus.h"

#include <algorithm>
#include <iterator>
#include <type_traits>
#include <typeinfo>
#include <utility>
#include <vector>

#include "Fc/Core/Kernel/FcObject.h"
#include "Fc/Core/Kernel/FcTypeObject.h"
#include "Fc/Core/ProductExtension/FcOpeningElement.h"
#include "Fc/Core/ProductExtension/FcRelSpaceBoundary.h"
#include "Fc/Core/ProductExtension/FcRelSpaceBoundary1stLevel.h"
#include "Fc/Core/ProductExtension/FcRelSpaceBoundary2ndLevel.h"
#include "Fc/Core/ProductExtension/FcSpatialZone.h"
#include "Fc/Data.h"
#include "Fc/Domain/StructuralElements/FcVoidingFeature.h"
#include "Fc/Model/Report.h"
#include "Fc/Resource/Representation/FcGeometricRepresentationSubContext.h"
#include "Fc/Resource/Representation/FcRepresentation.h"
#include "Qor/Draw/IfcGeometricRepresentationContextEnum.h"
#include "Qor/String/IgnoreCase.h"

namespace qor::fc {

namespace {

using core::kernel::FcObject;
using core::kernel::FcRoot;
using resource::representation::FcGeometricRepresentationContext;
using resource::representation::FcGeometricRepresentationSubContext;
using resource::representation::FcRepresentation;

DrawStatus::StateKey classKey(const FcBase& object) { return std::type_index(typeid(object)); }

bool isValidContextIdentifier(const std::string& identifier) {
  using Texts = generate::draw::IfcGeometricRepresentationContextEnum;
  const int last = static_cast<int>(Texts::ModelContextIdentifier::Lighting);
  for (int i = 0; i <= last; ++i)
    if (equalsIgnoreCase(identifier,
                         Texts::sContextIdentifier(static_cast<Texts::ModelContextIdentifier>(i))))
      return true;
  report("Invalid IfcGeometricRepresentationSubContext ContextIdentifier");
  return false;
}

/// The sub-contexts of a model by what they compete with.
struct ContextLists {
  std::vector<DrawStatus::StateKey> bodies;
  std::vector<DrawStatus::StateKey> besideBody;
  bool hasDetailedBody = false;

  void sortIn(const FcGeometricRepresentationSubContext& context) {
    if (!context.ContextIdentifier()) return;
    const std::string& identifier = *context.ContextIdentifier();
    const auto is = [&](const char* word) { return equalsIgnoreCase(identifier, word); };
    if (is("Body - Detail"))
      hasDetailedBody = true;
    else if (is("FootPrint") || is("Annotation"))
      return;
    else if (is("Body") || !isValidContextIdentifier(identifier))
      bodies.emplace_back(&context);
    else
      besideBody.emplace_back(&context);
  }
};

}  // namespace

DrawStatus DrawStatus::createDefaultForProject(const Data& data) {
  using namespace core::productextension;
  DrawStatus status;
  status.m_disabled = {std::type_index(typeid(FcSpatialZone)),
                       std::type_index(typeid(FcOpeningElement)),
                       std::type_index(typeid(FcRelSpaceBoundary)),
                       std::type_index(typeid(FcRelSpaceBoundary1stLevel)),
                       std::type_index(typeid(FcRelSpaceBoundary2ndLevel)),
                       std::type_index(typeid(domain::structuralelements::FcVoidingFeature))};
  status.addProject(data);
  return status;
}

void DrawStatus::addProject(const Data& data) {
  ContextLists contexts;
  for (const std::shared_ptr<FcGeometricRepresentationSubContext> context :
       data.entities<FcGeometricRepresentationSubContext>())
    contexts.sortIn(*context);
  const bool hasBody = !contexts.bodies.empty();
  if (hasBody || contexts.hasDetailedBody)
    for (const StateKey& key : contexts.besideBody) disable(key);
  if (hasBody && contexts.hasDetailedBody)
    for (const StateKey& key : contexts.bodies) disable(key);
}

void DrawStatus::removeProject(const Data& data) {
  StateSet keys;
  for (const std::shared_ptr<FcRoot> root : data.entities<FcRoot>())
    keys.emplace(static_cast<const FcRoot*>(root.get()));
  for (const std::shared_ptr<FcGeometricRepresentationContext> context :
       data.entities<FcGeometricRepresentationContext>())
    keys.emplace(static_cast<const FcGeometricRepresentationContext*>(context.get()));
  setEnabled(keys, true);
  setRepresentationState(keys, std::nullopt);
}

DrawStatus::StateSet DrawStatus::getDisabledStates() const {
  StateSet alive;
  for (const StateKey& key : m_disabled)
    if (isAlive(key)) alive.insert(alive.end(), key);
  return alive;
}

void DrawStatus::setDisabledStates(StateSet disabled) {
  const StateSet before = std::exchange(m_disabled, std::move(disabled));
  for (const StateKey& key : before) forgetUnused(key);
  for (const StateKey& key : m_disabled) watch(key);
}

void DrawStatus::disable(const StateKey& key) {
  m_disabled.insert(key);
  watch(key);
}

// Only a key that is new is followed: what an older one points at may have died.
void DrawStatus::watch(const StateKey& key) {
  if (m_watched.contains(key)) return;
  std::weak_ptr<const FcBase> owned = std::visit(
      [](const auto& value) -> std::weak_ptr<const FcBase> {
        if constexpr (std::is_pointer_v<std::remove_cvref_t<decltype(value)>>)
          return value ? value->weak_from_this() : std::weak_ptr<const FcBase>();
        else
          return {};
      },
      key);
  if (!owned.expired()) m_watched.emplace(key, std::move(owned));
}

void DrawStatus::forgetUnused(const StateKey& key) {
  if (!m_disabled.contains(key) && !m_representationStates.contains(key)) m_watched.erase(key);
}

bool DrawStatus::isAlive(const StateKey& key) const {
  const auto watched = m_watched.find(key);
  return watched == m_watched.end() || !watched->second.expired();
}

void DrawStatus::setEnabled(const StateKey& key, bool enabled) {
  setEnabled(StateSet{key}, enabled);
}

void DrawStatus::setEnabled(const StateSet& keys, bool enabled) {
  for (const StateKey& key : keys) {
    if (enabled) {
      m_disabled.erase(key);
      forgetUnused(key);
    } else {
      disable(key);
    }
  }
  m_disabledStatesEvent.fire(keys,
                             enabled ? ObserverOperation::Enabled : ObserverOperation::Disabled);
}

std::optional<DrawStatus::ObjectRepresentationState> DrawStatus::getRepresentationState(
    const StateKey& key) const {
  const auto found = m_representationStates.find(key);
  if (found == m_representationStates.end()) return std::nullopt;
  return found->second;
}

std::optional<DrawStatus::ObjectRepresentationState> DrawStatus::getRepresentationState(
    const FcBase& object) const {
  if (m_representationStates.empty()) return std::nullopt;
  if (const auto state = getRepresentationState(classKey(object))) return state;
  if (const FcRoot* root = fcCast<FcRoot>(&object))
    if (const auto state = getRepresentationState(StateKey(root))) return state;
  if (const FcObject* occurrence = fcCast<FcObject>(&object))
    if (const auto type = occurrence->getTypeObject())
      return getRepresentationState(StateKey(static_cast<const FcRoot*>(type.get())));
  return std::nullopt;
}

void DrawStatus::setRepresentationState(const StateKey& key,
                                        std::optional<ObjectRepresentationState> state) {
  setRepresentationState(StateSet{key}, state);
}

void DrawStatus::setRepresentationState(const StateSet& keys,
                                        std::optional<ObjectRepresentationState> state) {
  for (const StateKey& key : keys) {
    if (state) {
      m_representationStates.insert_or_assign(key, *state);
      watch(key);
    } else {
      m_representationStates.erase(key);
      forgetUnused(key);
    }
  }
  m_representationStatesEvent.fire(keys, state);
}

bool DrawStatus::shouldDraw(const FcBase& object) const {
  if (m_disabled.empty()) return true;
  if (!isEnabled(classKey(object))) return false;
  if (const FcRoot* root = fcCast<FcRoot>(&object); root && !isEnabled(root)) return false;
  const FcObject* occurrence = fcCast<FcObject>(&object);
  const auto type = occurrence ? occurrence->getTypeObject() : nullptr;
  return !type || isEnabled(static_cast<const FcRoot*>(type.get()));
}

bool DrawStatus::shouldDraw(const FcRepresentation& representation) const {
  const FcBase* context = representation.ContextOfItems().get();
  const auto* geometric = fcCast<FcGeometricRepresentationContext>(context);
  return !geometric || isEnabled(geometric);
}

void DrawStatus::assignAndNotify(const DrawStatus& other) {
  StateSet disabled, enabled;
  std::set_difference(other.m_disabled.begin(), other.m_disabled.end(), m_disabled.begin(),
                      m_disabled.end(), std::inserter(disabled, disabled.end()));
  std::set_difference(m_disabled.begin(), m_disabled.end(), other.m_disabled.begin(),
                      other.m_disabled.end(), std::inserter(enabled, enabled.end()));
  m_watched.insert(other.m_watched.begin(), other.m_watched.end());
  setDisabledStates(other.m_disabled);
  m_disabledStatesEvent.fire(disabled, ObserverOperation::Disabled);
  m_disabledStatesEvent.fire(enabled, ObserverOperation::Enabled);
}

}  // namespace qor::fc
