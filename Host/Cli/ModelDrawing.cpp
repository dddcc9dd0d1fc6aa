#include "Host/Cli/ModelDrawing.h"

#include <fmt/format.h>
#include <fmt/ranges.h>

#include <algorithm>
#include <fstream>
#include <functional>
#include <memory>
#include <ostream>
#include <set>
#include <utility>
#include <variant>
#include <vector>

#include "Fc/Core/Kernel/FcProduct.h"
#include "Fc/Document/Document.h"
#include "Fc/Document/FcDrawInterfaceWrapper.h"
#include "Fc/Drawing/FcGenerateParams.h"
#include "Fc/Resource/Geometry/FcRepresentationItem.h"
#include "Fc/Resource/Geometry/FcRepresentationMap.h"
#include "Fc/Resource/Representation/FcProductRepresentation.h"
#include "Fc/Resource/Representation/FcRepresentation.h"
#include "Host/Cli/DrawingReport.h"
#include "Host/Cli/EntityOption.h"
#include "Host/Cli/LoadModel.h"
#include "Host/Cli/ModelTree.h"
#include "Host/Cli/PrintableText.h"
#include "Host/Cli/ProcessorScope.h"
#include "Host/Cli/ProgressBar.h"
#include "Host/Cli/Watch.h"
#include "Host/Cli/WholeNumber.h"
#include "Host/StepFile/Progress.h"
#include "Qor/Assert/Assert.h"
#include "Qor/Draw/Representation.h"
#include "Qor/Math/Epsilon.h"
#include "Qor/String/IgnoreCase.h"

namespace qor::host::cli {

namespace {

using fc::core::kernel::FcProduct;
using fc::core::kernel::FcRoot;
using fc::resource::geometry::FcRepresentationItem;
using fc::resource::geometry::FcRepresentationMap;
using fc::resource::representation::FcGeometricRepresentationContext;
using fc::resource::representation::FcProductRepresentation;
using fc::resource::representation::FcRepresentation;

/// The one entity that is asked for; null, after a line that says why, for none.
std::shared_ptr<fc::FcBase> findEntity(const step::ReadResult& model, const DrawingOptions& options,
                                       Console& console) {
  const auto id = idFromText(options.id, console);
  return id ? findEntity(model, *id, options.file.string(), console) : nullptr;
}

/// What is drawn when nothing is asked for: the project, and what its walk may not come by, since
/// it is nested in another object, or since no project leads to it, of which a line tells. Parents
/// come before what belongs to them; what the walk has met it doesn't draw again.
std::vector<std::shared_ptr<fc::FcBase>> allRoots(const step::ReadResult& model, Console& console) {
  std::vector<std::shared_ptr<fc::FcBase>> roots;
  std::size_t outside = 0;
  walkModelTree(*model.data, numbersOf(model), [&](const TreeNode& node) {
    const auto* product = fc::fcCast<FcProduct>(node.object.get());
    if (node.depth == 0 || (product && product->Representation())) roots.push_back(node.object);
    outside += node.relation == TreeRelation::outside ? 1 : 0;
    return true;
  });
  if (outside > 0)
    console.err << fmt::format(
        "fctool: no project leads to {} of the products; they are drawn all the same\n", outside);
  return roots;
}

/// Leaves bodies as they are before openings are cut out, or gives what is left of a cut item the
/// look of the item.
class ModelWrapper : public fc::FcDrawInterfaceWrapper {
 public:
  ModelWrapper(generate::draw::DrawInterface& target, bool noOpenings)
      : FcDrawInterfaceWrapper(target), m_noOpenings(noOpenings) {}

  void drawConstRepresentationItem(std::shared_ptr<const FcRepresentationItem> item,
                                   const fc::FcDrawParams& params,
                                   generate::draw::SurfaceDrawType type) override {
    std::optional<RestoreClipping> uncut;
    if (m_noOpenings)
      uncut.emplace(*this);
    else if (isClipping())
      checkStyles(*item);
    FcDrawInterfaceWrapper::drawConstRepresentationItem(std::move(item), params, type);
  }

 private:
  bool m_noOpenings;
};

/// One walk over a model into one target.
class Drawing {
 public:
  Drawing(const std::shared_ptr<fc::Data>& data, const fc::DrawStatus& status,
          RepresentationChoice* choice, generate::draw::DrawInterface& target,
          fc::DrawOutcomes& outcomes, const DrawingOptions& options, Watch& watch,
          const std::function<void(double)>& tell)
      : m_document(data),
        m_target(target),
        m_wrapper(target, options.noOpenings),
        m_params(m_wrapper, m_document, status, *data, choice, nullptr, nullptr),
        m_progress(tell, data->entities<FcProduct>().size()) {
    m_params.outcomes = &outcomes;
    m_params.skipExpensiveClipping = options.skipExpensive;
    m_params.skipObjectCallback = [this, &watch](const Guid& guid) {
      watch.at(guid);
      m_progress.advance(m_done++);
      return false;
    };
  }

  /// False for an entity that can't be drawn.
  bool draw(const std::shared_ptr<fc::FcBase>& entity) {
    if (const auto root = fc::fcCast<FcRoot>(entity)) {
      root->generate(m_params);
      return true;
    }
    fc::FcDrawParams params(m_wrapper);
    params.skipExpensiveClipping = m_params.skipExpensiveClipping;
    if (const auto item = fc::fcCast<FcRepresentationItem>(entity))
      return drawPart(*entity, [&] {
        m_wrapper.drawConstRepresentationItem(item, params,
                                              generate::draw::SurfaceDrawType::Surface);
      });
    if (const auto representation = fc::fcCast<FcRepresentation>(entity))
      return drawPart(*entity, [&] { representation->draw(params); });
    if (const auto map = fc::fcCast<FcRepresentationMap>(entity))
      return drawPart(*entity, [&] { map->draw(params); });
    if (const auto shape = fc::fcCast<FcProductRepresentation>(entity))
      return drawPart(*entity, [&] { shape->generate(m_params); });
    return false;
  }

 private:
  /// What has no object of its own is drawn as one.
  template <class Draw>
  bool drawPart(const fc::FcBase& entity, const Draw& drawIt) {
    m_target.startObject(&entity);
    drawIt();
    m_target.stopObject();
    return true;
  }

  fc::document::Document m_document;
  generate::draw::DrawInterface& m_target;
  ModelWrapper m_wrapper;
  fc::FcGenerateParams m_params;
  step::Progress m_progress;
  std::size_t m_done = 0;
};

/// Tells outcomes of the reports that come while it lives, beside who is told anyhow.
class ReportedTo {
 public:
  explicit ReportedTo(fc::DrawOutcomes& outcomes) {
    m_previous = Assert::setHandler({});
    Assert::setHandler([&outcomes, previous = m_previous](const AssertInfo& info) {
      outcomes.addReport(info.message);
      if (previous) previous(info);
    });
  }
  ReportedTo(const ReportedTo&) = delete;
  ReportedTo& operator=(const ReportedTo&) = delete;
  ~ReportedTo() { Assert::setHandler(std::move(m_previous)); }

 private:
  Assert::Handler m_previous;
};

/// The identifiers of the representations of a model, and those that the schema names.
std::set<std::string> knownIdentifiers(const fc::Data& data) {
  using generate::draw::Representation;
  using generate::draw::RepresentationIdentifier;
  std::set<std::string> known;
  for (const std::shared_ptr<FcRepresentation> representation : data.entities<FcRepresentation>())
    if (const auto& identifier = representation->RepresentationIdentifier())
      known.insert(*identifier);
  for (int i = 0; i <= static_cast<int>(RepresentationIdentifier::Reference); ++i)
    known.insert(Representation::sIdentifier(static_cast<RepresentationIdentifier>(i)));
  return known;
}

/// False, after a line that says why, when the options name a context or a product that isn't
/// there.
bool canAnswer(const step::ReadResult& model, const DrawingOptions& options, Console& console) {
  if (options.why && !options.why->empty() &&
      !findProduct(model, *options.why, options.file.string(), console))
    return false;
  if (options.context.empty()) return true;
  const auto known = knownIdentifiers(*model.data);
  if (std::ranges::any_of(known, [&](const std::string& identifier) {
        return equalsIgnoreCase(identifier, options.context);
      }))
    return true;
  refuse(console, fmt::format("{} is the identifier of no representation; known are {}",
                              inQuotes(options.context),
                              printable(fmt::format("{}", fmt::join(known, ", ")))));
  return false;
}

fc::DrawStatus withAllContexts(const fc::DrawStatus& status) {
  fc::DrawStatus::StateSet disabled = status.getDisabledStates();
  std::erase_if(disabled, [](const fc::DrawStatus::StateKey& key) {
    return std::holds_alternative<const FcGeometricRepresentationContext*>(key);
  });
  fc::DrawStatus result;
  result.setDisabledStates(std::move(disabled));
  return result;
}

}  // namespace

std::optional<math::CurveDiscretization> discretizationOf(const DrawingOptions& options,
                                                          Console& console) {
  const auto segments = twoWholeNumbers(options.segments, ',');
  if (!segments || segments->first < 3 || segments->second < segments->first ||
      segments->second > 100000) {
    refuse(console, fmt::format("{} is no least and most number of segments, such as 16,72",
                                inQuotes(options.segments)));
    return std::nullopt;
  }
  if (!(options.chord > 0)) {
    refuse(console, fmt::format("a chord of {} mm isn't above 0", options.chord));
    return std::nullopt;
  }
  return math::CurveDiscretization(options.chord / 1000, segments->first, segments->second);
}

std::optional<fc::DrawStatus> readDrawStatus(const fc::Data& data,
                                             const std::filesystem::path& file, Console& console) {
  if (file.empty()) return fc::DrawStatus::createDefaultForProject(data);
  std::ifstream stream(file, std::ios::binary);
  auto status = stream ? fc::DrawStatus::deserialize(data, stream, file.string()) : std::nullopt;
  if (!status)
    refuse(console, fmt::format("can't read a draw status from {}", inQuotes(file.string())));
  return status;
}

bool drawModel(const step::ReadResult& model, const DrawingOptions& options,
               const fc::DrawStatus& status, RepresentationChoice* choice,
               generate::draw::DrawInterface& target, DrawingReport& report, Console& console) {
  if (!canAnswer(model, options, console)) return false;
  std::vector<std::shared_ptr<fc::FcBase>> roots;
  if (options.id.empty())
    roots = allRoots(model, console);
  else if (auto entity = findEntity(model, options, console))
    roots = {std::move(entity)};
  else
    return false;
  if (roots.empty()) {
    refuse(console, fmt::format("{} has no product to draw; --id draws any one entity",
                                inQuotes(options.file.string())));
    return false;
  }
  const ProcessorScope processor;
  const math::EpsilonSave tolerances;
  math::Epsilon::current().set(1000.0, false);
  ProgressBar bar("Drawing", console);
  const fc::DrawStatus all = choice ? withAllContexts(status) : fc::DrawStatus();
  const Watch::Walk walk(console.watch, model);
  const ReportedTo reported(report.outcomes());
  Drawing drawing(model.data, choice ? all : status, choice, target, report.outcomes(), options,
                  console.watch, bar.callback());
  for (const auto& root : roots) {
    if (drawing.draw(root)) continue;
    refuse(console,
           fmt::format("{} {} is nothing that can be drawn", options.id, root->ifcNameUpper()));
    return false;
  }
  return true;
}

}  // namespace qor::host::cli
