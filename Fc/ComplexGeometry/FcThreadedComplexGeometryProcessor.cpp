#include "Fc/ComplexGeometry/FcThreadedComplexGeometryProcessor.h"

#include <algorithm>
#include <exception>
#include <iterator>
#include <string>
#include <utility>

#include "Fc/ComplexGeometry/FcComplexGeometryProcessorQueueContext.h"
#include "Fc/Model/Report.h"

namespace qor::fc {
namespace {

void fulfil(std::promise<std::unique_ptr<FcComplexGeometryTaskResult>>& promise,
            std::unique_ptr<FcComplexGeometryTaskResult> result) {
  try {
    promise.set_value(std::move(result));
  } catch (const std::future_error&) {
    // Nobody can be told.
  }
}

void reportFailure(const std::string& what) { report("A queued task failed: " + what); }

}  // namespace

FcThreadedComplexGeometryProcessor::~FcThreadedComplexGeometryProcessor() {
  terminateAndWaitOnAllThreads();
}

std::unique_ptr<FcComplexGeometryTaskResult> FcThreadedComplexGeometryProcessor::process(
    const FcComplexGeometryTask& task) const {
  return task.process();
}

std::future<std::unique_ptr<FcComplexGeometryTaskResult>>
FcThreadedComplexGeometryProcessor::processAsync(
    std::unique_ptr<FcComplexGeometryTask> task,
    const FcComplexGeometryProcessorQueueContext& context, Priority priority) const {
  std::promise<std::unique_ptr<FcComplexGeometryTaskResult>> promise;
  auto future = promise.get_future();
  {
    const std::lock_guard lock(m_queueMutex);
    (priority == PriorityHigh ? m_highQueue : m_lowQueue)
        .push_back({std::move(task), context.id(), std::move(promise)});
  }
  m_wakeUp.notify_one();
  startThreads();
  return future;
}

void FcThreadedComplexGeometryProcessor::abortAllClipping(
    const FcComplexGeometryProcessorQueueContext& context) const {
  Queue withdrawn;  // destroyed after the lock is released: the tasks own copies of whole items
  const std::lock_guard lock(m_queueMutex);
  for (Queue* queue : {&m_highQueue, &m_lowQueue}) {
    const auto first = std::stable_partition(
        queue->begin(), queue->end(),
        [&](const QueueEntry& entry) { return entry.contextId != context.id(); });
    withdrawn.insert(withdrawn.end(), std::move_iterator(first), std::move_iterator(queue->end()));
    queue->erase(first, queue->end());
  }
  for (QueueEntry& entry : withdrawn) fulfil(entry.promise, nullptr);
}

std::size_t FcThreadedComplexGeometryProcessor::numThreads() const {
  return std::max(1u, std::thread::hardware_concurrency() / 2);
}

void FcThreadedComplexGeometryProcessor::terminateAndWaitOnAllThreads() {
  {
    const std::lock_guard lock(m_queueMutex);
    m_terminate = true;
  }
  m_wakeUp.notify_all();
  for (std::thread& thread : m_threads)
    if (thread.joinable()) thread.join();
}

void FcThreadedComplexGeometryProcessor::startThreads() const {
  const std::lock_guard lock(m_threadsMutex);
  if (!m_threads.empty()) return;
  const std::size_t count = numThreads();
  m_threads.reserve(count);
  while (m_threads.size() < count) m_threads.emplace_back([this] { work(); });
}

void FcThreadedComplexGeometryProcessor::work() const {
  for (;;) {
    QueueEntry entry;
    if (!takeEntry(entry)) return;
    runEntry(entry);
  }
}

// False when the pool ends, whatever the queues still hold.
bool FcThreadedComplexGeometryProcessor::takeEntry(QueueEntry& entry) const {
  std::unique_lock lock(m_queueMutex);
  m_wakeUp.wait(lock,
                [this] { return m_terminate || !m_highQueue.empty() || !m_lowQueue.empty(); });
  if (m_terminate) return false;
  Queue& queue = m_highQueue.empty() ? m_lowQueue : m_highQueue;
  entry = std::move(queue.back());
  queue.pop_back();
  return true;
}

void FcThreadedComplexGeometryProcessor::runEntry(QueueEntry& entry) const {
  std::unique_ptr<FcComplexGeometryTaskResult> result;
  // An exception that left the thread would end the host.
  try {
    if (entry.task) result = process(*entry.task);
  } catch (const std::exception& exception) {
    reportFailure(exception.what());
  } catch (...) {
    reportFailure("an exception of unknown type");
  }
  fulfil(entry.promise, std::move(result));
}

}  // namespace qor::fc
