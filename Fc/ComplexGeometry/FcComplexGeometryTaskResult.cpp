#include "Fc/ComplexGeometry/FcComplexGeometryTaskResult.h"

#include "Fc/ComplexGeometry/FcDoubleResult.h"
#include "Fc/ComplexGeometry/FcPolygonalFaceSetResult.h"
#include "Fc/ComplexGeometry/FcSurfacesResult.h"

// The destructors stand here so that each class has one table of virtual functions and one type
// record in the library, by which a result is recognised across its border.
namespace qor::fc {

FcComplexGeometryTaskResult::~FcComplexGeometryTaskResult() = default;
FcDoubleResult::~FcDoubleResult() = default;
FcPolygonalFaceSetResult::~FcPolygonalFaceSetResult() = default;
FcSurfacesResult::~FcSurfacesResult() = default;

}  // namespace qor::fc
