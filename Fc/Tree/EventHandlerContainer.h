#pragma once

#include <algorithm>
#include <cstddef>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

#include "Fc/Model/Report.h"

namespace qor::fc {

/// The handlers of one event of `Owner`: hosts add and remove them, the owner alone fires.
///
/// Handlers are called in the order in which they were added, each with its own copy of the
/// arguments. A handler may add and remove handlers, itself included: one that is removed meanwhile
/// isn't called any more, one that is added waits for the next event.
template <class Owner, class Result, class... Arguments>
class EventHandlerContainer {
 public:
  using Handler = std::function<Result(Arguments...)>;
  using HandlerId = std::size_t;

  /// The id under which it can be removed; ids aren't used again. `handler` must be callable.
  HandlerId add(Handler handler) {
    if (!m_entries) m_entries = std::make_unique<std::vector<Entry>>();
    m_entries->push_back({m_nextId, std::move(handler)});
    return m_nextId++;
  }

  /// An assert and no change when there is no such handler.
  void remove(HandlerId id) {
    if (const auto found = find(id); m_entries && found != m_entries->end()) {
      m_entries->erase(found);
    } else
      report("Event handler doesn't exist");
  }

 private:
  friend Owner;
  struct Entry {
    HandlerId id;
    Handler handler;
  };

  typename std::vector<Entry>::iterator find(HandlerId id) {
    if (!m_entries) return {};
    return std::find_if(m_entries->begin(), m_entries->end(),
                        [id](const Entry& entry) { return entry.id == id; });
  }

  void fire(const Arguments&... arguments) {
    if (!m_entries) return;
    const std::vector<Entry> entries = *m_entries;  // handlers may change the list
    for (const Entry& entry : entries)
      if (find(entry.id) != m_entries->end()) entry.handler(arguments...);
  }

  HandlerId m_nextId = 0;
  std::unique_ptr<std::vector<Entry>> m_entries;
};

}  // namespace qor::fc
