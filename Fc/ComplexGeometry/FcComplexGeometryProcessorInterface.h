#pragma once

#include <future>
#include <memory>

#include "Fc/ComplexGeometry/FcComplexGeometryTaskResult.h"
#include "Fc/Model/Report.h"
#include "Qor/Platform/Export.h"

namespace qor::fc {

class FcComplexGeometryProcessorQueueContext;
class FcComplexGeometryTask;

/// Runs the work that needs the solid modeller. One is current in the process, installed by the
/// host; without one, items that need it aren't drawn.
class QOR_API FcComplexGeometryProcessorInterface {
 public:
  enum Priority { PriorityHigh = 0, PriorityLow = 1 };

  virtual ~FcComplexGeometryProcessorInterface();

  /// Runs the task now, on the calling thread. Null when the task has nothing to give.
  virtual std::unique_ptr<FcComplexGeometryTaskResult> process(
      const FcComplexGeometryTask& task) const = 0;

  /// Queues the task for a worker. The future gives the task's result, null when it had none or was
  /// withdrawn, or throws `std::future_error` when the processor ended before the task's turn.
  virtual std::future<std::unique_ptr<FcComplexGeometryTaskResult>> processAsync(
      std::unique_ptr<FcComplexGeometryTask> task,
      const FcComplexGeometryProcessorQueueContext& context, Priority priority) const = 0;

  /// Withdraws what was queued under `context` and no worker has taken; their futures are ready.
  /// A task that runs goes on to its end.
  virtual void abortAllClipping(const FcComplexGeometryProcessorQueueContext& context) const = 0;

  /// `process` for a task whose result is known to be a `ResultType`. Another one is reported, and
  /// gives null as no result does.
  template <class ResultType>
  std::unique_ptr<ResultType> processAndCast(const FcComplexGeometryTask& task) const;
};

/// Makes `processor` the current one, or none when it is null. The one before is destroyed then,
/// which may wait for the tasks that it has at work. Nobody may be using that one meanwhile.
QOR_API void setCurrentComplexGeometryProcessor(
    std::unique_ptr<FcComplexGeometryProcessorInterface> processor);
/// Null when there is none. Valid until the next one is installed.
QOR_API FcComplexGeometryProcessorInterface* getCurrentComplexGeometryProcessor();

template <class ResultType>
std::unique_ptr<ResultType> FcComplexGeometryProcessorInterface::processAndCast(
    const FcComplexGeometryTask& task) const {
  std::unique_ptr<FcComplexGeometryTaskResult> result = process(task);
  if (!result) return nullptr;
  if (auto* typed = dynamic_cast<ResultType*>(result.get())) {
    result.release();
    return std::unique_ptr<ResultType>(typed);
  }
  report("Unexpected result type");
  return nullptr;
}

}  // namespace qor::fc
