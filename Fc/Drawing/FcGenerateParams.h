#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <memory_resource>
#include <unordered_set>
#include <vector>

#include "Fc/Drawing/DrawStatusInterface.h"
#include "Fc/Drawing/FcDrawInterface.h"
#include "Fc/Drawing/GenerateFilters.h"
#include "Fc/Drawing/ObjectInterfaceFactory.h"
#include "Qor/Draw/GenerateInterface.h"
#include "Qor/Id/Guid.h"

namespace qor::fc {

class Data;
class DrawOutcomes;

namespace core::kernel {
class FcProduct;
}
namespace core::productextension {
class FcRelConnectsWithRealizingElements;
}

/// One walk over a model, from a root down: who is told of it, what is left out, and what it has
/// met so far. Each root is generated once; a second walk needs a new object.
///
/// The host sets the public members between construction and the walk.
class QOR_API FcGenerateParams {
 public:
  using FcProduct = core::kernel::FcProduct;
  using FcRoot = core::kernel::FcRoot;

  /// Everything is referred to and outlives the walk. `target` is told of objects, materials and
  /// colours; when it is an `FcDrawInterface` too, the walk draws into it. The last three may be
  /// null: no choice among representations, none among contexts, no connection lines of cables.
  FcGenerateParams(generate::GenerateInterface& target, const ObjectInterfaceFactory& objects,
                   const DrawStatusInterface& drawStatus, const Data& data,
                   RepresentationInterface* representationFilter,
                   const RepresentationContextInterface* contextFilter,
                   ObjectInterface* connectionLine);
  FcGenerateParams(const FcGenerateParams&) = delete;
  FcGenerateParams& operator=(const FcGenerateParams&) = delete;
  ~FcGenerateParams();

  /// Spatial elements generate what they contain.
  bool generateContainedElements = true;
  /// The walk draws the one type product with this guid, and no occurrences of it.
  bool typeFilterSet = false;
  Guid typeFilterGuid;
  /// Told of each cable with a connection line.
  std::function<void(std::shared_ptr<core::productextension::FcRelConnectsWithRealizingElements>,
                     std::shared_ptr<const FcProduct>)>
      cableToConnectionLineCallback;
  /// Called for a product that the draw status has switched off, while its object is open.
  std::function<void(FcGenerateParams&, const FcProduct&)> disabledProductCallback;
  /// True: the product with this guid isn't opened as an object, nor drawn; its parts are.
  std::function<bool(const Guid&)> skipObjectCallback;
  /// Told of each root that the draw status shows differently.
  std::function<void(const FcRoot&, DrawStatusInterface::ObjectRepresentationState)>
      representationStateCallback;
  /// Keeps what becomes of each product, for a host that asks why something isn't seen. Not owned;
  /// null keeps nothing, and costs nothing.
  DrawOutcomes* outcomes = nullptr;
  /// Goes into the `FcDrawParams` of all items.
  bool skipExpensiveClipping = false;
  /// Ports draw a small cone.
  bool drawPortMarkers = false;

  generate::GenerateInterface& generateInterface() const { return m_target; }
  /// Null when the walk draws nothing.
  FcDrawInterface* drawInterface() const { return m_drawInterface; }
  const Data& data() const { return m_data; }
  RepresentationInterface* representationFilter() const { return m_representationFilter; }
  const RepresentationContextInterface* contextFilter() const { return m_contextFilter; }
  /// Null when nobody wants connection lines.
  ObjectInterface* connectionLine() const { return m_connectionLine; }

  /// The object that the root is drawn under, which has been told the root; null when the root
  /// isn't represented. Remembers for `dataFromObject` under which model the root was met.
  ObjectInterface* object(const std::shared_ptr<FcRoot>& root);
  /// The object of the connection lines, told the product; an assert and null when there is none.
  ObjectInterface* objectConnectionLine(const std::shared_ptr<FcProduct>& product);
  void vCableToConnectionLineMapEntry(
      std::shared_ptr<core::productextension::FcRelConnectsWithRealizingElements> relation,
      std::shared_ptr<const FcProduct> product);

  /// What the draw status says.
  bool isEnabled(const FcRoot& root) const;
  bool isEnabled(const resource::representation::FcRepresentation& representation) const;
  /// Tells `representationStateCallback` of a root that is shown differently.
  void handleRepresentationState(const FcRoot& root) const;

  /// The model under which a root was last drawn, in whatever walk; null for none. Looks in each
  /// model that was walked. Walks and these two run one at a time.
  static const Data* dataFromObject(const std::shared_ptr<FcRoot>& root);
  /// Forgets what was drawn of a model. A host calls it before the model goes.
  static void removeCache(const Data& data);

  /// Generates the root and all below it, unless that was done before in this walk. Neither depth
  /// nor length of a chain costs stack.
  void generate(const FcRoot& root);

  /// For implementations of `doGenerate`: what is to be done when it has returned. The roots are
  /// generated one after the other, each with all below it; null ones are passed over. `then` is
  /// called behind the last one, destroyed at once, and may come with an `afterwards` of its own.
  /// Several calls of one `doGenerate` are carried out in their order.
  void afterwards(std::vector<std::shared_ptr<const FcRoot>> roots,
                  std::function<void()> then = {});

 private:
  /// Roots that are being generated, and what follows them.
  struct Step {
    std::vector<std::shared_ptr<const FcRoot>> roots;
    std::function<void()> then;
    std::size_t next = 0;
  };

  bool visit(const FcRoot& root);
  template <class Action>
  void run(Action&& action);
  void runSteps(std::size_t floor);
  void dropSteps(std::size_t floor);

  generate::GenerateInterface& m_target;
  FcDrawInterface* m_drawInterface;
  const ObjectInterfaceFactory& m_objects;
  const DrawStatusInterface& m_drawStatus;
  const Data& m_data;
  RepresentationInterface* m_representationFilter;
  const RepresentationContextInterface* m_contextFilter;
  ObjectInterface* m_connectionLine;
  std::pmr::monotonic_buffer_resource m_memory;  ///< one piece for many of the visited roots
  std::pmr::unordered_set<const FcRoot*> m_visited;
  std::vector<Step> m_steps;
};

}  // namespace qor::fc
