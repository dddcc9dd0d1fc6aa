#include "Fc/ComplexGeometry/FcComplexGeometryProcessorQueueContext.h"

#include <atomic>

#include "Fc/ComplexGeometry/FcComplexGeometryProcessorInterface.h"

namespace qor::fc {

FcComplexGeometryProcessorQueueContext::FcComplexGeometryProcessorQueueContext() {
  static std::atomic<std::uint64_t> lastId{0};
  m_id = ++lastId;
}

FcComplexGeometryProcessorQueueContext::~FcComplexGeometryProcessorQueueContext() {
  if (const auto* processor = getCurrentComplexGeometryProcessor())
    processor->abortAllClipping(*this);
}

}  // namespace qor::fc
