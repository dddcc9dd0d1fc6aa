// How a draw status is stored: the root "FcDrawStatus" with the elements "DisabledItems" and
// "representationStates", and in these one element for each key.

#include <algorithm>
#include <initializer_list>
#include <istream>
#include <ostream>
#include <string>
#include <string_view>
#include <utility>
#include <variant>

#include "Fc/Core/Kernel/FcRoot.h"
#include "Fc/Data.h"
#include "Fc/Factory.h"
#include "Fc/Model/Report.h"
#include "Fc/Resource/Representation/FcGeometricRepresentationContext.h"
#include "Fc/Tree/DrawStatus.h"
#include "Qor/Xml/File.h"

namespace qor::fc {

namespace {

using core::kernel::FcRoot;
using resource::representation::FcGeometricRepresentationContext;
using State = DrawStatus::ObjectRepresentationState;

constexpr const char* rootElement = "FcDrawStatus";
constexpr const char* disabledList = "DisabledItems";
constexpr const char* stateList = "representationStates";

/// The endings of the elements' names in one of the two lists; the first word says what is done.
struct KeyWords {
  std::string_view root;
  std::string_view context;
  std::string_view type;
};
constexpr KeyWords disabledWords{"IfcRoot", "Context", "Class"};
constexpr KeyWords stateWords{"IfcRoot", "IfcContext", "IfcClass"};

const char* wordOf(State state) {
  return state == State::Transparent ? "Transparent" : "Wireframe";
}

/// Appends one element for a key.
struct KeyWriter {
  void operator()(const FcRoot* root) const {
    append(words.root).setAttribute("guid", root->GlobalId().toString(false));
  }
  void operator()(const FcGeometricRepresentationContext* context) const {
    xml::Element element = append(words.context);
    if (context->ContextIdentifier())
      element.setAttribute("identifier", *context->ContextIdentifier());
    if (context->ContextType()) element.setAttribute("type", *context->ContextType());
  }
  void operator()(const std::type_index& type) const {
    const auto found = Factory::getFcClasses().find(type);
    if (found != Factory::getFcClasses().end())
      append(words.type).setAttribute("name", found->second.view());
  }

  xml::Element append(std::string_view ending) const {
    return list.appendElement(firstWord + std::string(ending));
  }

  xml::Element& list;
  const KeyWords& words;
  std::string firstWord;
};

/// Reads the keys of one list. What an element stands for may be several contexts, or nothing.
class KeyReader {
 public:
  KeyReader(const Data& data, const KeyWords& words) : m_data(data), m_words(words) {}

  /// `ending` is the element's name without its first word; empty, after an assert, for an unknown
  /// or incomplete element.
  DrawStatus::StateSet read(const xml::Element& element, std::string_view ending) const {
    if (ending == m_words.root) return readRoot(element);
    if (ending == m_words.context) return readContexts(element);
    if (ending == m_words.type) return readClass(element);
    report("Unknown element " + element.nodeName());
    return {};
  }

 private:
  DrawStatus::StateSet readRoot(const xml::Element& element) const {
    const auto text = element.attribute("guid");
    Guid guid;
    if (!text)
      report("Missing attribute guid on DisabledIfcRoot");
    else if (!guid.boSet(*text))
      report("Invalid guid " + *text);
    else if (const auto root = m_data.entityByGuid(guid))
      return {static_cast<const FcRoot*>(root.get())};
    return {};
  }

  DrawStatus::StateSet readContexts(const xml::Element& element) const {
    DrawStatus::StateSet keys;
    const auto identifier = element.attribute("identifier"), type = element.attribute("type");
    for (const std::shared_ptr<FcGeometricRepresentationContext> context :
         m_data.entities<FcGeometricRepresentationContext>())
      if (context->ContextIdentifier() == identifier && context->ContextType() == type)
        keys.emplace(static_cast<const FcGeometricRepresentationContext*>(context.get()));
    return keys;
  }

  static DrawStatus::StateSet readClass(const xml::Element& element) {
    const auto name = element.attribute("name");
    if (!name) {
      report("Missing attribute name on DisabledClass");
      return {};
    }
    for (const auto& [type, className] : Factory::getFcClasses())
      if (className.view() == *name) return {type};
    return {};
  }

  const Data& m_data;
  const KeyWords& m_words;
};

/// Calls back for each child of each list of this name with its name less the first word that fits,
/// and that word's number; with an empty name where none fits.
template <class Callback>
void forEachEntry(const xml::File& file, const char* list,
                  std::initializer_list<std::string_view> firstWords, Callback&& callback) {
  for (const xml::Element& items : file.ElementsByTagNameGet(list))
    for (const xml::Element& entry : items.children()) {
      const std::string name = entry.nodeName();
      const auto word = std::find_if(firstWords.begin(), firstWords.end(),
                                     [&](std::string_view w) { return name.starts_with(w); });
      const std::size_t length = word == firstWords.end() ? name.size() : word->size();
      callback(entry, std::string_view(name).substr(length),
               static_cast<std::size_t>(word - firstWords.begin()));
    }
}

}  // namespace

void DrawStatus::serialize(std::ostream& stream) const {
  xml::File file;
  auto root = file.create(rootElement);
  if (!root) {
    report("Could not create element");
    return;
  }
  xml::Element disabled = root->appendElement(disabledList);
  for (const StateKey& key : getDisabledStates())
    std::visit(KeyWriter{disabled, disabledWords, "Disabled"}, key);
  xml::Element states = root->appendElement(stateList);
  for (const auto& [key, state] : m_representationStates)
    if (isAlive(key)) std::visit(KeyWriter{states, stateWords, wordOf(state)}, key);
  file.save(stream);
}

std::optional<DrawStatus> DrawStatus::deserialize(const Data& data, std::istream& stream,
                                                  const std::string& fileName) {
  xml::File file;
  if (!file.parse(stream, fileName)) {
    report("Could not parse XML file " + fileName);
    return std::nullopt;
  }
  if (file.root()->nodeName() != rootElement) {
    report("Error in FcDrawStatus xml file");
    return std::nullopt;
  }
  DrawStatus status;
  forEachEntry(file, disabledList, {"Disabled"},
               [&, reader = KeyReader(data, disabledWords)](const xml::Element& entry,
                                                            std::string_view ending, std::size_t) {
                 status.setEnabled(reader.read(entry, ending), false);
               });
  forEachEntry(file, stateList, {wordOf(State::Transparent), wordOf(State::Wireframe)},
               [&, reader = KeyReader(data, stateWords)](
                   const xml::Element& entry, std::string_view ending, std::size_t word) {
                 status.setRepresentationState(reader.read(entry, ending),
                                               static_cast<State>(word));
               });
  return status;
}

}  // namespace qor::fc
