#include "Host/Cli/Watch.h"

#include <fmt/format.h>

#include <algorithm>
#include <csignal>
#include <cstdlib>

#include "Fc/Core/Kernel/FcRoot.h"
#include "Host/Cli/EntityLabel.h"
#include "Qor/Platform/ReplacingFile.h"

namespace qor::host::cli {

namespace {

using Clock = std::chrono::steady_clock;

// The only kind of variable that a signal handler may write.
volatile std::sig_atomic_t isInterrupted = 0;

extern "C" void noteInterruption(int signal) {
  isInterrupted = 1;
  std::signal(signal, noteInterruption);  // some systems forget it
}

}  // namespace

Watch::Watch(std::ostream& err, std::chrono::milliseconds patience)
    : m_err(err), m_patience(patience), m_thread([this] { run(); }) {}

Watch::~Watch() {
  {
    const std::lock_guard lock(m_mutex);
    m_isDone = true;
  }
  m_wakeUp.notify_one();
  m_thread.join();
}

void Watch::endInOrderWhenInterrupted() {
  std::signal(SIGINT, noteInterruption);
  std::signal(SIGTERM, noteInterruption);
}

void Watch::at(const Guid& guid) {
  const std::lock_guard lock(m_mutex);
  m_guid = guid;
  ++m_visits;
}

std::string Watch::object() const {
  const std::lock_guard lock(m_mutex);
  return objectWhileLocked();
}

std::string Watch::objectWhileLocked() const {
  const auto root = m_model && m_visits > 0 ? m_model->data->entityByGuid(m_guid) : nullptr;
  return root ? nameWhileLocked(*root) : std::string();
}

std::string Watch::nameOf(const fc::FcBase& entity) const {
  const std::lock_guard lock(m_mutex);
  return nameWhileLocked(entity);
}

std::string Watch::nameWhileLocked(const fc::FcBase& entity) const {
  if (m_model && !m_numbers) m_numbers.emplace(*m_model->data, m_model->instances);
  return label(entity, m_numbers ? m_numbers->find(entity) : std::nullopt);
}

void Watch::run() {
  constexpr std::chrono::milliseconds tick(50);
  std::uint64_t seen = 0;
  Clock::time_point since = Clock::now();
  Clock::duration patience = m_patience;
  std::unique_lock lock(m_mutex);
  while (!m_isDone) {
    m_wakeUp.wait_for(lock, std::min(tick, m_patience));
    if (isInterrupted) end();
    const auto now = Clock::now();
    if (seen != m_visits) {
      seen = m_visits;
      since = now;
      patience = m_patience;
    } else if (m_visits > 0 && now - since >= patience) {
      patience *= 2;
      tell(now - since);
    }
  }
}

void Watch::tell(Clock::duration duration) const {
  using Seconds = std::chrono::duration<double>;
  m_err << lineStart()
        << fmt::format("fctool: {} has taken {:.0f} s so far\n", objectWhileLocked(),
                       Seconds(duration).count())
        << std::flush;
}

void Watch::end() const {
  const std::string object = objectWhileLocked();
  m_err << (object.empty() ? std::string("\nfctool: interrupted\n")
                           : fmt::format("\nfctool: interrupted at {}\n", object))
        << std::flush;
  ReplacingFile::removeTemporaries();
  std::_Exit(interruptedExitCode);
}

Watch::Walk::Walk(Watch& watch, const step::ReadResult& model) : m_watch(watch) {
  // What a model orders when it is asked is ordered now, since the watch asks from its own thread.
  model.data->entityByGuid(Guid());
  model.data->allEntities();
  const std::lock_guard lock(m_watch.m_mutex);
  m_watch.m_model = &model;
  m_watch.m_visits = 0;
}

Watch::Walk::~Walk() {
  const std::lock_guard lock(m_watch.m_mutex);
  m_watch.m_model = nullptr;
  m_watch.m_numbers.reset();
  m_watch.m_visits = 0;
}

}  // namespace qor::host::cli
