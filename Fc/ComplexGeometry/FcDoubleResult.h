#pragma once

#include "Fc/ComplexGeometry/FcComplexGeometryTaskResult.h"

namespace qor::fc {

/// A number, such as a distance in metres.
class QOR_API FcDoubleResult : public FcComplexGeometryTaskResult {
 public:
  explicit FcDoubleResult(double value) : m_value(value) {}
  ~FcDoubleResult() override;

  double value() const { return m_value; }

 private:
  double m_value;
};

}  // namespace qor::fc
