#include "Fc/ComplexGeometry/FcCalculateDistanceTask.h"

#include <optional>
#include <utility>

#include "Fc/ComplexGeometry/FcDoubleResult.h"
#include "Fc/ComplexGeometry/SolidModeller.h"

namespace qor::fc {

FcCalculateDistanceTask::FcCalculateDistanceTask(FcParams params, Item firstItem, Item secondItem,
                                                 const math::Matrix& firstMatrix,
                                                 const math::Matrix& secondMatrix)
    : FcComplexGeometryTask(std::move(params)),
      m_firstItem(std::move(firstItem)),
      m_secondItem(std::move(secondItem)),
      m_firstMatrix(firstMatrix),
      m_secondMatrix(secondMatrix) {}

FcCalculateDistanceTask::~FcCalculateDistanceTask() = default;

std::unique_ptr<FcComplexGeometryTaskResult> FcCalculateDistanceTask::process() const {
  const auto* modeller = SolidModeller::get();
  if (!modeller) return nullptr;
  const auto least =
      modeller->distance({m_firstItem, m_firstMatrix}, {m_secondItem, m_secondMatrix}, params());
  return least ? std::make_unique<FcDoubleResult>(*least) : nullptr;
}

}  // namespace qor::fc
