#pragma once

#include <condition_variable>
#include <cstddef>
#include <cstdint>
#include <future>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

#include "Fc/ComplexGeometry/FcComplexGeometryProcessorInterface.h"
#include "Fc/ComplexGeometry/FcComplexGeometryTask.h"

namespace qor::fc {

/// The processor with a pool of threads of its own.
///
/// `process` runs on the caller's thread, beside the workers. The pool starts with the first queued
/// task, so that a host that never queues has no threads. The task queued last runs first, and
/// those of high priority before all others. Its end waits for the tasks that run and drops those
/// that are queued, whose futures report a broken promise.
///
/// All operations may be called from any thread.
class QOR_API FcThreadedComplexGeometryProcessor : public FcComplexGeometryProcessorInterface {
 public:
  FcThreadedComplexGeometryProcessor() = default;
  FcThreadedComplexGeometryProcessor(const FcThreadedComplexGeometryProcessor&) = delete;
  FcThreadedComplexGeometryProcessor& operator=(const FcThreadedComplexGeometryProcessor&) = delete;
  ~FcThreadedComplexGeometryProcessor() override;

  std::unique_ptr<FcComplexGeometryTaskResult> process(
      const FcComplexGeometryTask& task) const override;
  /// Throws `std::system_error` when no thread can be started; the task is queued all the same.
  std::future<std::unique_ptr<FcComplexGeometryTaskResult>> processAsync(
      std::unique_ptr<FcComplexGeometryTask> task,
      const FcComplexGeometryProcessorQueueContext& context, Priority priority) const override;
  void abortAllClipping(const FcComplexGeometryProcessorQueueContext& context) const override;

 protected:
  /// How many workers the pool has: half of the hardware's threads, at least 1.
  virtual std::size_t numThreads() const;
  /// Ends the pool for good. A class that overrides `process` calls it in its destructor, before
  /// that `process` is gone.
  void terminateAndWaitOnAllThreads();

 private:
  struct QueueEntry {
    std::unique_ptr<FcComplexGeometryTask> task;
    std::uint64_t contextId;
    std::promise<std::unique_ptr<FcComplexGeometryTaskResult>> promise;
  };
  using Queue = std::vector<QueueEntry>;

  void startThreads() const;
  void work() const;
  bool takeEntry(QueueEntry& entry) const;
  void runEntry(QueueEntry& entry) const;

  mutable Queue m_highQueue;  // this queue and the next are guarded by m_queueMutex
  mutable Queue m_lowQueue;
  bool m_terminate = false;  // likewise
  mutable std::mutex m_queueMutex;
  mutable std::condition_variable m_wakeUp;
  mutable std::vector<std::thread> m_threads;
  mutable std::mutex m_threadsMutex;
};

}  // namespace qor::fc
