#include "Fc/Resource/GeometricModel/FcGeometricSetSelect.h"

#include "Fc/Resource/Geometry/FcCurve.h"
#include "Fc/Resource/Geometry/FcPoint.h"
#include "Fc/Resource/Geometry/FcSurface.h"

namespace qor::fc::resource::geometricmodel {

std::shared_ptr<geometry::FcGeometricRepresentationItem> FcGeometricSetSelect::item() const {
  switch (type()) {
    case Types::Curve:
      return Curve();
    case Types::Point:
      return Point();
    case Types::Surface:
      return Surface();
    case Types::NotSet:
      break;
  }
  return nullptr;
}

void FcGeometricSetSelect::transform(const math::Matrix& matrix) const {
  if (const auto element = item()) element->transform(matrix);
}

}  // namespace qor::fc::resource::geometricmodel
