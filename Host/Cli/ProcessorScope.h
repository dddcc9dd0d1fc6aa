#pragma once

#include "Fc/ComplexGeometry/FcThreadedComplexGeometryProcessor.h"

namespace qor::host::cli {

/// Installs a processor for what needs the solid modeller, unless there is one, for as long as it
/// lives.
class ProcessorScope {
 public:
  ProcessorScope() : m_isOurs(!fc::getCurrentComplexGeometryProcessor()) {
    if (m_isOurs)
      fc::setCurrentComplexGeometryProcessor(
          std::make_unique<fc::FcThreadedComplexGeometryProcessor>());
  }
  ProcessorScope(const ProcessorScope&) = delete;
  ProcessorScope& operator=(const ProcessorScope&) = delete;
  ~ProcessorScope() {
    if (m_isOurs) fc::setCurrentComplexGeometryProcessor(nullptr);
  }

 private:
  bool m_isOurs;
};

}  // namespace qor::host::cli
