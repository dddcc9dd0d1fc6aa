#pragma once

#include <cstdint>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "Fc/FcBase.h"
#include "Fc/Model/EntityRange.h"
#include "Fc/Reflection/MakeEntity.h"
#include "Qor/Id/Guid.h"
#include "Qor/Platform/Export.h"

namespace qor::fc {

namespace core::kernel {
class FcProject;
class FcRoot;
}  // namespace core::kernel

/// One model: all entities of one IFC project in memory. Always held by a `std::shared_ptr`, which
/// entities point back at.
///
/// Owns what it lists. An add is an append; sorting by class and indexing by guid wait for the
/// first query that needs them and are then done for all at once. What came since the last sort is
/// sorted by itself and merged, which moves only entities of higher classes. A class query is a
/// binary search, since the ids of a class and its subclasses are one range.
///
/// No locks: a model belongs to one thread at a time. Before handing a model to reading threads,
/// ask one class query and one guid look-up.
class QOR_API Data : public std::enable_shared_from_this<Data> {
 public:
  using Entities = std::vector<std::shared_ptr<FcBase>>;

  Data() = default;
  Data(const Data&) = delete;
  Data& operator=(const Data&) = delete;
  ~Data();

  /// A new entity of the class with this mixed-case name, "IfcWall"; null, with an assert, for an
  /// unknown or abstract class. A root gets no guid.
  std::shared_ptr<FcBase> entityCreate(const std::string& ifcName);
  /// Lists the entity; with `checkDuplicate` only when it isn't there yet, which is a linear
  /// search. Null is no error. A root and a geometric representation context learn of their model
  /// here.
  void entityAdd(std::shared_ptr<FcBase> entity, bool checkDuplicate);
  /// Takes the entity off the list, false when it isn't there. What refers to it goes on doing so.
  bool entityDelete(std::shared_ptr<FcBase> entity);
  /// Linear in the number of entities of its class.
  bool hasEntity(const FcBase& entity) const;
  /// Room for that many entities in all.
  void reserve(std::size_t count);
  std::size_t size() const { return m_entities->size() + m_added.size(); }

  /// The project that was added last; without one the first that is listed; null for none.
  std::shared_ptr<core::kernel::FcProject> project();
  std::shared_ptr<const core::kernel::FcProject> project() const;

  /// Takes all entities off the list. The references among them stay.
  void clear();
  /// Keeps exactly what the project reaches, by forward or inverse attributes; an assert and no
  /// change without a project. What was listed keeps its order, `inListedOrder`.
  void rebuildEntityList();
  /// The same entities, each once: those that are listed in the order of the list, then the others
  /// as a walk from those by forward and inverse attributes meets them. Two runs give one order,
  /// but for several unlisted entities that name the same one.
  Entities inListedOrder(const Entities& entities) const;

  /// All that `start` reaches by forward and inverse attributes, itself included; empty for null.
  static std::set<std::shared_ptr<FcBase>> getAllReferencedEntitiesNonConst(
      std::shared_ptr<FcBase> start);
  static std::set<std::shared_ptr<const FcBase>> getAllReferencedEntities(
      std::shared_ptr<const FcBase> start);

  /// A new entity of class `T`, listed.
  template <class T>
  std::shared_ptr<T> create() {
    auto entity = makeEntity<T>();
    entityAdd(entity, false);
    return entity;
  }
  /// All entities of class `T` and its subclasses, as a range of `std::shared_ptr<T>`, which stays
  /// as it is when entities are added or deleted while it is walked over.
  template <class T>
  EntityRange<T> entities() const {
    return typed<T>(rangeFromId(T::firstClassId, T::lastClassId));
  }
  /// The same without subclasses.
  template <class T>
  EntityRange<T> entitiesExactly() const {
    return typed<T>(rangeFromId(T::firstClassId));
  }
  /// The first entity of class `T` or a subclass that the predicate, which takes a `const T&`,
  /// holds for; null for none.
  template <class T, class Predicate>
  std::shared_ptr<T> findFirst(Predicate&& predicate) const {
    for (std::shared_ptr<T> entity : entities<T>())
      if (predicate(std::as_const(*entity))) return entity;
    return nullptr;
  }
  /// The root with this guid, null for none. Roots that had no guid when they were added are found
  /// from then on that they have one; a root whose guid changes after it was looked up stays under
  /// the old one. Of several with one guid the first is found, and when it is deleted the next.
  ///
  /// A hash look-up. Roots without a guid are gone through again only after some root, of whatever
  /// model, was given one.
  std::shared_ptr<core::kernel::FcRoot> entityByGuid(const Guid& guid) const;

  /// All entities, sorted by class; those of one class in the order in which they were added.
  EntityRange<FcBase> allEntities() const;

 protected:
  using Range = std::pair<Entities::iterator, Entities::iterator>;
  using ConstRange = std::pair<Entities::const_iterator, Entities::const_iterator>;

  /// (`classId`, `classIdLast`); (0, 0), with an assert, for an unknown name.
  static std::pair<std::uint32_t, std::uint32_t> idFromName(std::string_view ifcName);
  ConstRange rangeFromId(std::uint32_t id) const;
  Range rangeFromId(std::uint32_t id);
  ConstRange rangeFromId(std::uint32_t first, std::uint32_t last) const;
  Range rangeFromId(std::uint32_t first, std::uint32_t last);
  void sortEntities() const;
  void guidUpdate() const;

 private:
  using Roots = std::vector<std::shared_ptr<core::kernel::FcRoot>>;

  template <class T>
  EntityRange<T> typed(ConstRange range) const {
    return {m_entities, range.first, range.second};
  }
  /// The sorted list for changing it: a copy when a range shows it.
  Entities& ownEntities() const;
  void forgetGuid(const core::kernel::FcRoot& root);

  /// Sorted by class. Never null.
  mutable std::shared_ptr<Entities> m_entities = std::make_shared<Entities>();
  /// What was added since, in that order.
  mutable Entities m_added;
  mutable std::unordered_map<Guid, std::shared_ptr<core::kernel::FcRoot>> m_guidEntityMap;
  mutable Roots m_pendingGuidEntities;
  /// Listed roots whose guid another one had before them.
  mutable Roots m_sameGuidEntities;
  /// `guidChanges()` when the pending roots were gone through.
  mutable std::uint64_t m_guidChanges = 0;
  std::shared_ptr<core::kernel::FcProject> m_project;
};

}  // namespace qor::fc
