#include "Fc/Data.h"

#include <algorithm>
#include <execution>
#include <iterator>
#include <typeinfo>
#include <unordered_set>

#include "Fc/Core/Kernel/FcProject.h"
#include "Fc/Core/Kernel/FcRoot.h"
#include "Fc/Drawing/FcGenerateParams.h"
#include "Fc/Factory.h"
#include "Fc/Model/Report.h"
#include "Fc/Reflection/GuidChanges.h"
#include "Fc/Resource/Representation/FcGeometricRepresentationContext.h"

namespace qor::fc {

using core::kernel::FcProject;
using core::kernel::FcRoot;
using resource::representation::FcGeometricRepresentationContext;

namespace {

struct ById {
  bool operator()(const std::shared_ptr<FcBase>& a, const std::shared_ptr<FcBase>& b) const {
    return a->classId() < b->classId();
  }
  bool operator()(const std::shared_ptr<FcBase>& a, std::uint32_t id) const {
    return a->classId() < id;
  }
  bool operator()(std::uint32_t id, const std::shared_ptr<FcBase>& b) const {
    return id < b->classId();
  }
};

bool lists(const Data::Entities& entities, const std::shared_ptr<FcBase>& entity) {
  return std::find(entities.begin(), entities.end(), entity) != entities.end();
}

// Merges what is sorted by class into a sorted list, behind those of the same class.
void mergeBehind(Data::Entities& entities, Data::Entities& added) {
  std::size_t end = entities.size();
  entities.resize(end + added.size());
  for (std::size_t left = added.size(); left > 0; --left) {
    std::shared_ptr<FcBase>& last = added[left - 1];
    const auto from = entities.begin();
    const auto place = std::upper_bound(from, std::next(from, static_cast<std::ptrdiff_t>(end)),
                                        last->classId(), ById());
    std::move_backward(place, std::next(from, static_cast<std::ptrdiff_t>(end)),
                       std::next(from, static_cast<std::ptrdiff_t>(end + left)));
    end = static_cast<std::size_t>(place - from);
    entities[end + left - 1] = std::move(last);
  }
}

template <class Entities>
auto rangeIn(Entities& entities, std::uint32_t first, std::uint32_t last) {
  return std::pair(std::lower_bound(entities.begin(), entities.end(), first, ById()),
                   std::upper_bound(entities.begin(), entities.end(), last, ById()));
}

}  // namespace

Data::~Data() { FcGenerateParams::removeCache(*this); }

std::shared_ptr<FcBase> Data::entityCreate(const std::string& ifcName) {
  std::shared_ptr<FcBase> entity = Factory::objectFromIfcName(StringHash::of(ifcName));
  entityAdd(entity, false);
  return entity;
}

void Data::entityAdd(std::shared_ptr<FcBase> entity, bool checkDuplicate) {
  if (checkDuplicate && (lists(m_added, entity) || lists(*m_entities, entity))) return;
  if (!entity) return;
  FcBase& added = *entity;
  m_added.push_back(std::move(entity));

  const std::uint32_t id = added.classId();
  if (id == FcProject::firstClassId && typeid(added) == typeid(FcProject))
    m_project = std::static_pointer_cast<FcProject>(m_added.back());
  if (id >= FcRoot::firstClassId && id <= FcRoot::lastClassId) {
    m_pendingGuidEntities.push_back(std::static_pointer_cast<FcRoot>(m_added.back()));
    m_guidChanges = 0;
    if (weak_from_this().expired()) report("This should be created with std::make_shared");
    static_cast<FcRoot&>(added).m_data = weak_from_this();
  } else if (auto* context = fcCast<FcGeometricRepresentationContext>(&added)) {
    context->m_data = weak_from_this();
  }
}

bool Data::entityDelete(std::shared_ptr<FcBase> entity) {
  if (!entity) return false;
  const auto [begin, end] = rangeFromId(entity->classId());
  const auto found = std::find(begin, end, entity);
  if (found == end) return false;
  m_entities->erase(found);
  if (const auto root = fcCast<FcRoot>(entity); root && !hasEntity(*root)) forgetGuid(*root);
  if (m_project == entity) m_project.reset();
  return true;
}

void Data::forgetGuid(const FcRoot& root) {
  const auto is = [&root](const std::shared_ptr<FcRoot>& listed) { return listed.get() == &root; };
  std::erase_if(m_pendingGuidEntities, is);
  std::erase_if(m_sameGuidEntities, is);
  auto known = m_guidEntityMap.find(root.GlobalId());
  if (known == m_guidEntityMap.end() || !is(known->second))  // its guid may have changed since
    known = std::find_if(m_guidEntityMap.begin(), m_guidEntityMap.end(),
                         [&is](const auto& entry) { return is(entry.second); });
  if (known == m_guidEntityMap.end()) return;
  const auto next = std::find_if(
      m_sameGuidEntities.begin(), m_sameGuidEntities.end(),
      [&known](const std::shared_ptr<FcRoot>& same) { return same->GlobalId() == known->first; });
  if (next == m_sameGuidEntities.end()) {
    m_guidEntityMap.erase(known);
  } else {
    known->second = std::move(*next);
    m_sameGuidEntities.erase(next);
  }
}

bool Data::hasEntity(const FcBase& entity) const {
  const auto [begin, end] = rangeFromId(entity.classId());
  return std::any_of(begin, end, [&entity](const std::shared_ptr<FcBase>& listed) {
    return listed.get() == &entity;
  });
}

void Data::reserve(std::size_t count) {
  if (count > size()) m_added.reserve(count - m_entities->size());
}

std::shared_ptr<FcProject> Data::project() {
  if (m_project) return m_project;
  const EntityRange<FcProject> listed = entitiesExactly<FcProject>();
  return listed.empty() ? nullptr : listed.front();
}

std::shared_ptr<const FcProject> Data::project() const {
  return const_cast<Data*>(this)->project();
}

void Data::clear() {
  m_entities = std::make_shared<Entities>();
  m_added.clear();
  m_guidEntityMap.clear();
  m_pendingGuidEntities.clear();
  m_sameGuidEntities.clear();
  m_project.reset();
}

void Data::rebuildEntityList() {
  const std::shared_ptr<FcProject> start = project();
  if (!start) {
    report("fc::Data::rebuildEntityList can only be used if data contains a project");
    return;
  }
  const auto reached = getAllReferencedEntitiesNonConst(start);
  const Entities ordered = inListedOrder({reached.begin(), reached.end()});
  clear();
  for (const std::shared_ptr<FcBase>& entity : ordered) entityAdd(entity, false);
  m_project = start;
}

Data::Entities Data::inListedOrder(const Entities& entities) const {
  std::unordered_set<const FcBase*> left;
  for (const std::shared_ptr<FcBase>& entity : entities) left.insert(entity.get());
  Entities ordered;
  ordered.reserve(left.size());
  for (const std::shared_ptr<FcBase>& listed : allEntities())
    if (left.erase(listed.get()) != 0) ordered.push_back(listed);
  const FcBase::EntityCallback append = [&](const std::shared_ptr<FcBase>& entity,
                                            const object::PropertyId&) {
    if (left.erase(entity.get()) != 0) ordered.push_back(entity);
  };
  for (std::size_t i = 0; i < ordered.size() && !left.empty(); ++i) {
    const std::shared_ptr<FcBase> holder = ordered[i];
    holder->forEachEntity(append, true);
  }
  for (const std::shared_ptr<FcBase>& entity : entities)
    if (left.erase(entity.get()) != 0) ordered.push_back(entity);
  return ordered;
}

std::set<std::shared_ptr<FcBase>> Data::getAllReferencedEntitiesNonConst(
    std::shared_ptr<FcBase> start) {
  if (!start) return {};
  std::set<std::shared_ptr<FcBase>> reached{start};
  std::vector<FcBase*> work{start.get()};
  const FcBase::EntityCallback callback = [&](const std::shared_ptr<FcBase>& entity,
                                              const object::PropertyId&) {
    if (reached.insert(entity).second) work.push_back(entity.get());
  };
  while (!work.empty()) {
    FcBase* entity = work.back();
    work.pop_back();
    entity->forEachEntity(callback, true);
  }
  return reached;
}

std::set<std::shared_ptr<const FcBase>> Data::getAllReferencedEntities(
    std::shared_ptr<const FcBase> start) {
  const auto reached = getAllReferencedEntitiesNonConst(std::const_pointer_cast<FcBase>(start));
  return {reached.begin(), reached.end()};
}

std::shared_ptr<FcRoot> Data::entityByGuid(const Guid& guid) const {
  if (!m_pendingGuidEntities.empty() && m_guidChanges != guidChanges()) guidUpdate();
  const auto found = m_guidEntityMap.find(guid);
  return found == m_guidEntityMap.end() ? nullptr : found->second;
}

EntityRange<FcBase> Data::allEntities() const {
  sortEntities();
  return typed<FcBase>({m_entities->cbegin(), m_entities->cend()});
}

std::pair<std::uint32_t, std::uint32_t> Data::idFromName(std::string_view ifcName) {
  return Factory::boundFromIfcName(StringHash::of(ifcName)).value_or(std::pair(0U, 0U));
}

Data::ConstRange Data::rangeFromId(std::uint32_t id) const { return rangeFromId(id, id); }

Data::Range Data::rangeFromId(std::uint32_t id) { return rangeFromId(id, id); }

Data::ConstRange Data::rangeFromId(std::uint32_t first, std::uint32_t last) const {
  sortEntities();
  return rangeIn(std::as_const(*m_entities), first, last);
}

Data::Range Data::rangeFromId(std::uint32_t first, std::uint32_t last) {
  sortEntities();
  return rangeIn(ownEntities(), first, last);
}

// Entities of one class keep the order in which they were added, so that a model is always written
// with the same numbers.
void Data::sortEntities() const {
  if (m_added.empty()) return;
  if (m_added.size() > 1)
    std::stable_sort(std::execution::par, m_added.begin(), m_added.end(), ById());
  if (m_entities->empty())
    m_entities = std::make_shared<Entities>(std::move(m_added));
  else
    mergeBehind(ownEntities(), m_added);
  m_added.clear();
}

Data::Entities& Data::ownEntities() const {
  if (m_entities.use_count() > 1) m_entities = std::make_shared<Entities>(*m_entities);
  return *m_entities;
}

void Data::guidUpdate() const {
  m_guidChanges = guidChanges();
  Roots kept;
  for (std::shared_ptr<FcRoot>& root : m_pendingGuidEntities) {
    const Guid& guid = root->GlobalId();
    if (guid.isNull()) {
      kept.push_back(std::move(root));
    } else if (!m_guidEntityMap.emplace(guid, root).second) {
      report("Guid with id '" + guid.toString(false) +
             "' already exist in m_guidEntityMap on object '" + root->ifcName() + "'");
      m_sameGuidEntities.push_back(std::move(root));
    }
  }
  m_pendingGuidEntities = std::move(kept);
}

}  // namespace qor::fc
