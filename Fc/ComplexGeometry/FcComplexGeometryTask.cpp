#include "Fc/ComplexGeometry/FcComplexGeometryTask.h"

#include <utility>

#include "Qor/Math/CurveDiscretization.h"

namespace qor::fc {

FcComplexGeometryTask::FcComplexGeometryTask(FcParams params) : m_params(std::move(params)) {}
FcComplexGeometryTask::FcComplexGeometryTask() : m_params(math::CurveDiscretization(1.0, 10, 10)) {}
FcComplexGeometryTask::~FcComplexGeometryTask() = default;

}  // namespace qor::fc
