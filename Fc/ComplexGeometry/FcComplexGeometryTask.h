#pragma once

#include <memory>

#include "Fc/ComplexGeometry/FcComplexGeometryTaskResult.h"
#include "Fc/FcParams.h"
#include "Qor/Platform/Export.h"

namespace qor::fc {

/// A piece of work with the solid modeller that stands on its own: once it is made, it needs
/// nothing of whoever made it.
///
/// A task that may be queued (`processAsync`) holds deep copies of what it works on, made by its
/// constructor on the caller's thread, so that a worker never touches an entity of a live model.
class QOR_API FcComplexGeometryTask {
 public:
  /// Takes over the discretization and the flag of the caller.
  explicit FcComplexGeometryTask(FcParams params);
  /// A chord value of 1 m, 10 segments for each full circle, no flag.
  FcComplexGeometryTask();
  FcComplexGeometryTask(const FcComplexGeometryTask&) = delete;
  FcComplexGeometryTask& operator=(const FcComplexGeometryTask&) = delete;
  virtual ~FcComplexGeometryTask();

  /// Does the work on the calling thread. Null when there is nothing to give. A task that is queued
  /// should let no exception out: it would be reported, and the task be without result.
  virtual std::unique_ptr<FcComplexGeometryTaskResult> process() const = 0;

  const FcParams& params() const { return m_params; }

 private:
  FcParams m_params;
};

}  // namespace qor::fc
