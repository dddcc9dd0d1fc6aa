#include "Fc/Resource/Geometry/FcDirection.h"

#include "Fc/Reflection/MakeEntity.h"

namespace qor::fc::resource::geometry {

std::shared_ptr<FcDirection> makeDirection(const math::Vector3d& vector) {
  auto result = makeEntity<FcDirection>();
  result->setVector(vector);
  return result;
}

std::shared_ptr<FcDirection> makeDirection(const math::Vector2d& vector) {
  auto result = makeEntity<FcDirection>();
  result->setVector(vector);
  return result;
}

}  // namespace qor::fc::resource::geometry
