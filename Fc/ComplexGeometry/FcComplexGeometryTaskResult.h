#pragma once

#include "Qor/Platform/Export.h"

namespace qor::fc {

/// What a task of the complex geometry processor gives. Each kind is a plain holder.
class QOR_API FcComplexGeometryTaskResult {
 public:
  FcComplexGeometryTaskResult() = default;
  FcComplexGeometryTaskResult(const FcComplexGeometryTaskResult&) = delete;
  FcComplexGeometryTaskResult& operator=(const FcComplexGeometryTaskResult&) = delete;
  virtual ~FcComplexGeometryTaskResult();
};

}  // namespace qor::fc
