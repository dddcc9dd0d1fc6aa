#include "Fc/Drawing/FcGenerateParams.h"

#include <algorithm>
#include <map>
#include <mutex>
#include <unordered_map>
#include <utility>

#include "Fc/Core/Kernel/FcProduct.h"
#include "Fc/Model/Report.h"
#include "Fc/Resource/Representation/FcRepresentation.h"

namespace qor::fc {

namespace {

// A root that is gone leaves its address, which another one may come to have.
using Roots = std::unordered_map<const core::kernel::FcRoot*, std::weak_ptr<core::kernel::FcRoot>>;

/// Of all models of the process. Walks in one model at a time, but models may end on any thread.
struct DrawnRoots {
  std::mutex mutex;
  std::map<const Data*, Roots> byModel;
};

DrawnRoots& drawnRoots() {
  static auto* const roots = new DrawnRoots();  // stays for models that end after main
  return *roots;
}

}  // namespace

FcGenerateParams::FcGenerateParams(generate::GenerateInterface& target,
                                   const ObjectInterfaceFactory& objects,
                                   const DrawStatusInterface& drawStatus, const Data& data,
                                   RepresentationInterface* representationFilter,
                                   const RepresentationContextInterface* contextFilter,
                                   ObjectInterface* connectionLine)
    : m_target(target),
      m_drawInterface(dynamic_cast<FcDrawInterface*>(&target)),
      m_objects(objects),
      m_drawStatus(drawStatus),
      m_data(data),
      m_representationFilter(representationFilter),
      m_contextFilter(contextFilter),
      m_connectionLine(connectionLine),
      m_visited(8, &m_memory) {}

FcGenerateParams::~FcGenerateParams() = default;

ObjectInterface* FcGenerateParams::object(const std::shared_ptr<FcRoot>& root) {
  ObjectInterface* const object = m_objects.object(root);
  if (!object) return nullptr;
  {
    DrawnRoots& drawn = drawnRoots();
    const std::lock_guard lock(drawn.mutex);
    drawn.byModel[&m_data].insert_or_assign(root.get(), root);
  }
  object->objectSet(root);
  return object;
}

ObjectInterface* FcGenerateParams::objectConnectionLine(const std::shared_ptr<FcProduct>& product) {
  if (m_connectionLine) {
    m_connectionLine->objectSet(product);
  } else
    report("No connection line interface set");
  return m_connectionLine;
}

void FcGenerateParams::vCableToConnectionLineMapEntry(
    std::shared_ptr<core::productextension::FcRelConnectsWithRealizingElements> relation,
    std::shared_ptr<const FcProduct> product) {
  if (cableToConnectionLineCallback)
    cableToConnectionLineCallback(std::move(relation), std::move(product));
}

bool FcGenerateParams::isEnabled(const FcRoot& root) const { return m_drawStatus.shouldDraw(root); }

bool FcGenerateParams::isEnabled(
    const resource::representation::FcRepresentation& representation) const {
  return m_drawStatus.shouldDraw(representation);
}

void FcGenerateParams::handleRepresentationState(const FcRoot& root) const {
  if (!representationStateCallback) return;
  if (const auto state = m_drawStatus.getRepresentationState(root))
    representationStateCallback(root, *state);
}

const Data* FcGenerateParams::dataFromObject(const std::shared_ptr<FcRoot>& root) {
  DrawnRoots& drawn = drawnRoots();
  const std::lock_guard lock(drawn.mutex);
  for (const auto& [data, roots] : drawn.byModel) {
    const auto found = roots.find(root.get());
    if (found != roots.end() && found->second.lock() == root) return data;
  }
  return nullptr;
}

void FcGenerateParams::removeCache(const Data& data) {
  DrawnRoots& drawn = drawnRoots();
  const std::lock_guard lock(drawn.mutex);
  drawn.byModel.erase(&data);
}

bool FcGenerateParams::visit(const FcRoot& root) { return m_visited.insert(&root).second; }

void FcGenerateParams::generate(const FcRoot& root) {
  if (!visit(root)) return;
  const std::size_t floor = m_steps.size();
  try {
    run([&] { root.doGenerate(*this); });
    runSteps(floor);
  } catch (...) {
    dropSteps(floor);
    throw;
  }
}

void FcGenerateParams::afterwards(std::vector<std::shared_ptr<const FcRoot>> roots,
                                  std::function<void()> then) {
  m_steps.push_back({std::move(roots), std::move(then)});
}

// The last step is carried out first, so those that the action leaves are turned round.
template <class Action>
void FcGenerateParams::run(Action&& action) {
  const auto before = static_cast<std::ptrdiff_t>(m_steps.size());
  action();
  std::reverse(m_steps.begin() + before, m_steps.end());
}

void FcGenerateParams::runSteps(std::size_t floor) {
  while (m_steps.size() > floor) {
    Step& step = m_steps.back();
    if (step.next < step.roots.size()) {
      const std::shared_ptr<const FcRoot> root = std::move(step.roots[step.next++]);
      if (root && visit(*root)) run([&] { root->doGenerate(*this); });
    } else {
      const std::function<void()> then = std::move(step.then);
      m_steps.pop_back();
      if (then) run(then);
    }
  }
}

// The newest first, as a return from each would do it.
void FcGenerateParams::dropSteps(std::size_t floor) {
  while (m_steps.size() > floor) m_steps.pop_back();
}

}  // namespace qor::fc
