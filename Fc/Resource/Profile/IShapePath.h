#pragma once

#include "Fc/Resource/Profile/ProfilePath.h"

namespace qor::fc::resource::profile {

/// One of the two flanges of an I shape, with the radius of its fillets to the web, 0 for none.
struct IShapeFlange {
  double width;
  double thickness;
  double fillet;
};

/// The contour of an I shape around the origin, counter-clockwise from the lower left corner.
ProfilePath iShapePath(double depth, double webThickness, const IShapeFlange& bottom,
                       const IShapeFlange& top);

}  // namespace qor::fc::resource::profile
