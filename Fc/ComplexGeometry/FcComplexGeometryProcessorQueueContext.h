#pragma once

#include <cstdint>

#include "Qor/Platform/Export.h"

namespace qor::fc {

/// Groups queued tasks so that they can be withdrawn together. Make one, queue tasks under it,
/// collect their results, and let it go: its end withdraws from the current processor what no
/// worker has taken yet.
class QOR_API FcComplexGeometryProcessorQueueContext {
 public:
  FcComplexGeometryProcessorQueueContext();
  FcComplexGeometryProcessorQueueContext(const FcComplexGeometryProcessorQueueContext&) = delete;
  FcComplexGeometryProcessorQueueContext& operator=(const FcComplexGeometryProcessorQueueContext&) =
      delete;
  ~FcComplexGeometryProcessorQueueContext();

  /// Different for each context of the process, from 1 on.
  std::uint64_t id() const { return m_id; }

 private:
  std::uint64_t m_id;
};

}  // namespace qor::fc
