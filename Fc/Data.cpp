#include "Fc/Data.h"

#include <algorithm>
#include <execution>
#include <typeinfo>

#include "Fc/Core/Kernel/FcProject.h"
#include "Fc/Core/Kernel/FcRoot.h"
#include "Fc/Drawing/FcGenerateParams.h"
#include "Fc/Factory.h"
#include "Fc/Model/Report.h"
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
  if (checkDuplicate && std::find(m_entities.begin(), m_entities.end(), entity) != m_entities.end())
    return;
  if (!entity) return;
  FcBase& added = *entity;
  m_entities.push_back(std::move(entity));
  m_sorted = false;

  const std::uint32_t id = added.classId();
  if (id == FcProject::firstClassId && typeid(added) == typeid(FcProject))
    m_project = std::static_pointer_cast<FcProject>(m_entities.back());
  if (id >= FcRoot::firstClassId && id <= FcRoot::lastClassId) {
    m_pendingGuidEntities.push_back(std::static_pointer_cast<FcRoot>(m_entities.back()));
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
  m_entities.erase(found);
  if (const auto root = fcCast<FcRoot>(entity); root && root->getGuid().isNull()) {
    std::erase(m_pendingGuidEntities, root);  // or it would be found once it has one
  } else if (root) {
    guidUpdate();
    m_guidEntityMap.erase(root->getGuid());
  }
  if (m_project == entity) m_project.reset();
  return true;
}

bool Data::hasEntity(const FcBase& entity) const {
  const auto [begin, end] = rangeFromId(entity.classId());
  return std::any_of(begin, end, [&entity](const std::shared_ptr<FcBase>& listed) {
    return listed.get() == &entity;
  });
}

void Data::reserve(std::size_t count) { m_entities.reserve(count); }

std::shared_ptr<FcProject> Data::project() {
  if (m_project) return m_project;
  for (const std::shared_ptr<FcBase>& entity : m_entities)
    if (entity->classId() == FcProject::firstClassId)
      return std::static_pointer_cast<FcProject>(entity);
  return nullptr;
}

std::shared_ptr<const FcProject> Data::project() const {
  return const_cast<Data*>(this)->project();
}

void Data::clear() {
  m_entities.clear();
  m_sorted = false;
  m_guidEntityMap.clear();
  m_pendingGuidEntities.clear();
  m_project.reset();
}

void Data::rebuildEntityList() {
  const std::shared_ptr<FcProject> start = project();
  if (!start) {
    report("fc::Data::rebuildEntityList can only be used if data contains a project");
    return;
  }
  const auto reached = getAllReferencedEntitiesNonConst(start);
  clear();
  for (const std::shared_ptr<FcBase>& entity : reached) entityAdd(entity, false);
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
  if (!m_pendingGuidEntities.empty()) guidUpdate();
  const auto found = m_guidEntityMap.find(guid);
  return found == m_guidEntityMap.end() ? nullptr : found->second;
}

std::span<const std::shared_ptr<FcBase>> Data::allEntities() const {
  sortEntities();
  return m_entities;
}

std::pair<std::uint32_t, std::uint32_t> Data::idFromName(std::string_view ifcName) {
  return Factory::boundFromIfcName(StringHash::of(ifcName)).value_or(std::pair(0U, 0U));
}

Data::ConstRange Data::rangeFromId(std::uint32_t id) const { return rangeFromId(id, id); }

Data::Range Data::rangeFromId(std::uint32_t id) { return rangeFromId(id, id); }

Data::ConstRange Data::rangeFromId(std::uint32_t first, std::uint32_t last) const {
  sortEntities();
  return rangeIn(std::as_const(m_entities), first, last);
}

Data::Range Data::rangeFromId(std::uint32_t first, std::uint32_t last) {
  sortEntities();
  return rangeIn(m_entities, first, last);
}

// Entities of one class keep the order in which they were added, so that a model is always written
// with the same numbers.
void Data::sortEntities() const {
  if (m_sorted) return;
  std::stable_sort(std::execution::par, m_entities.begin(), m_entities.end(), ById());
  m_sorted = true;
}

void Data::guidUpdate() const {
  std::vector<std::shared_ptr<FcRoot>> kept;
  for (std::shared_ptr<FcRoot>& root : m_pendingGuidEntities) {
    const Guid& guid = root->GlobalId();
    if (guid.isNull()) {
      kept.push_back(std::move(root));
    } else if (!m_guidEntityMap.emplace(guid, root).second) {
      report("Guid with id '" + guid.toString(false) +
             "' already exist in m_guidEntityMap on object '" + root->ifcName() + "'");
    }
  }
  m_pendingGuidEntities = std::move(kept);
}

}  // namespace qor::fc
