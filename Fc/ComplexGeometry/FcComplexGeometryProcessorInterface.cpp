#include "Fc/ComplexGeometry/FcComplexGeometryProcessorInterface.h"

#include <atomic>

namespace qor::fc {
namespace {

// Outlives all users, those among the static objects included.
constinit std::atomic<FcComplexGeometryProcessorInterface*> currentProcessor{nullptr};

struct EndOfProcessor {
  ~EndOfProcessor() { delete currentProcessor.exchange(nullptr); }
};

}  // namespace

FcComplexGeometryProcessorInterface::~FcComplexGeometryProcessorInterface() = default;

void setCurrentComplexGeometryProcessor(
    std::unique_ptr<FcComplexGeometryProcessorInterface> processor) {
  static const EndOfProcessor end;
  delete currentProcessor.exchange(processor.release());
}

FcComplexGeometryProcessorInterface* getCurrentComplexGeometryProcessor() {
  return currentProcessor.load();
}

}  // namespace qor::fc
