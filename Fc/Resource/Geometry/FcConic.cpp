#include "Fc/Resource/Geometry/FcConic.h"

#include <numbers>

#include "Fc/Model/Report.h"

namespace qor::fc::resource::geometry {

std::vector<std::pair<double, FcCurve::ParameterType>> FcConic::parametricSegments() const {
  return {{2 * std::numbers::pi, ParameterType::angle}};
}

void FcConic::transform(const math::Matrix& matrix) {
  const double tolerance = math::Epsilon::current().general;
  const auto keepsLength = [&](const math::Vector3d& row) {
    return std::abs(row.length() - 1) <= tolerance;
  };
  const bool rigid = keepsLength(matrix.x()) && keepsLength(matrix.y()) && keepsLength(matrix.z());
  if (requireThat(*this, rigid, "Can't use scale or mirroring"))
    m_Position.setTransformation(m_Position.transformationGet() * matrix);
}

}  // namespace qor::fc::resource::geometry
