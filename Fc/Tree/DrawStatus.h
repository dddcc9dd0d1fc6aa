#pragma once

#include <iosfwd>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <typeindex>
#include <variant>

#include "Fc/Drawing/DrawStatusInterface.h"
#include "Fc/Tree/EventHandlerContainer.h"
#include "Qor/Platform/Export.h"

namespace qor::fc {

class Data;
class FcBase;

namespace core::kernel {
class FcRoot;
}
namespace resource::representation {
class FcGeometricRepresentationContext;
class FcRepresentation;
}  // namespace resource::representation

/// What of one or several models a user wants to see, and how: a set of things that are switched
/// off, and a table of things that are shown differently. Either is keyed by an entity, a
/// representation context or a class. A new status disables nothing.
///
/// Keys are plain pointers into a model. The status watches what they point at without owning it: a
/// key whose entity has died is passed over when the status is written, and never stands for
/// another entity. What a new key points at must be there. `removeProject` makes a status forget a
/// model that is about to go. Belongs to the thread of the model; events are fired on the thread
/// that made the change, before the call returns.
class QOR_API DrawStatus : public DrawStatusInterface {
 public:
  /// Compared by kind (entity, context, class), then by the value. An entity of the model is keyed
  /// as `const FcRoot*`, a class as the `typeid` of its C++ class; a class doesn't stand for its
  /// subclasses.
  using StateKey = std::variant<const core::kernel::FcRoot*,
                                const resource::representation::FcGeometricRepresentationContext*,
                                std::type_index>;
  using StateSet = std::set<StateKey>;

  enum class ObserverOperation { Disabled = 0, Enabled = 1 };

  using DisabledStatesEvent = EventHandlerContainer<DrawStatus, void, StateSet, ObserverOperation>;
  using RepresentationStatesEvent =
      EventHandlerContainer<DrawStatus, void, StateSet, std::optional<ObjectRepresentationState>>;

  /// A status with what is normally hidden in a model: openings, spatial zones, space boundaries
  /// and voiding features, and the contexts of `addProject`.
  static DrawStatus createDefaultForProject(const Data& data);

  /// Hides the sub-contexts of a further model that would draw its products a second time: those
  /// beside the body (axes, boxes ...) where there is one, and the body itself where there is a
  /// detailed one, "Body - Detail". Footprints and annotations stay on. No event.
  void addProject(const Data& data);
  /// Forgets all roots and contexts of a model, with one event of either kind.
  void removeProject(const Data& data);

  /// One look-up, no allocation.
  bool isEnabled(const StateKey& key) const { return !m_disabled.contains(key); }
  /// Fires the event whether or not the key changed.
  void setEnabled(const StateKey& key, bool enabled);
  /// The same for all keys, with one event.
  void setEnabled(const StateSet& keys, bool enabled);
  /// Without the keys whose entity has died.
  StateSet getDisabledStates() const;
  /// Without an event.
  void setDisabledStates(StateSet disabled);

  /// How a key is shown; nothing when it is shown as usual.
  std::optional<ObjectRepresentationState> getRepresentationState(const StateKey& key) const;
  /// What is set for the class of the object, else for the object itself if it is a root, else for
  /// its type object.
  std::optional<ObjectRepresentationState> getRepresentationState(
      const FcBase& object) const override;
  /// No value means as usual. Fires the event whether or not the key changed.
  void setRepresentationState(const StateKey& key, std::optional<ObjectRepresentationState> state);
  /// The same for all keys, with one event.
  void setRepresentationState(const StateSet& keys, std::optional<ObjectRepresentationState> state);

  /// False when the class of the object, the object itself or its type object is disabled. At most
  /// three look-ups.
  bool shouldDraw(const FcBase& object) const override;
  /// False when its geometric context is disabled.
  bool shouldDraw(const resource::representation::FcRepresentation& representation) const override;

  /// Takes over the disabled set of `other`, and tells first what this disabled, then what it
  /// enabled. Representation states stay.
  void assignAndNotify(const DrawStatus& other);

  /// Writes XML in UTF-8: entities by guid, contexts by identifier and type, classes by name. Two
  /// statuses with the same keys give the same bytes.
  void serialize(std::ostream& stream) const;
  /// Reads what `serialize` wrote; entities and contexts are looked up in `data`, and what isn't
  /// there any more is left out silently. Broken entries are told by asserts and left out. Nothing,
  /// after an assert, for what is no XML or no draw status; `fileName` is for that message.
  static std::optional<DrawStatus> deserialize(const Data& data, std::istream& stream,
                                               const std::string& fileName);

  DisabledStatesEvent& disabledStatesEvent() { return m_disabledStatesEvent; }
  RepresentationStatesEvent& representationStatesEvent() { return m_representationStatesEvent; }

 private:
  void disable(const StateKey& key);
  void watch(const StateKey& key);
  void forgetUnused(const StateKey& key);
  bool isAlive(const StateKey& key) const;

  StateSet m_disabled;
  std::map<StateKey, ObjectRepresentationState> m_representationStates;
  /// What the keys of both point at; nothing for classes and for what no `std::shared_ptr` holds. A
  /// weak pointer also keeps the place of what has died from being taken by something new.
  std::map<StateKey, std::weak_ptr<const FcBase>> m_watched;
  DisabledStatesEvent m_disabledStatesEvent;
  RepresentationStatesEvent m_representationStatesEvent;
};

}  // namespace qor::fc
