#include "Host/StepFile/Units/UnitRole.h"

#include "Fc/Core/Kernel/FcContext.h"
#include "Fc/Resource/DateTime/FcIrregularTimeSeriesValue.h"
#include "Fc/Resource/DateTime/FcTimeSeries.h"
#include "Fc/Resource/DateTime/FcTimeSeriesValue.h"
#include "Fc/Resource/GeometricModel/FcSweptDiskSolid.h"
#include "Fc/Resource/Geometry/FcCurveSegment.h"
#include "Fc/Resource/Geometry/FcDirectrixCurveSweptAreaSolid.h"
#include "Fc/Resource/Geometry/FcPcurve.h"
#include "Fc/Resource/Geometry/FcPointByDistanceExpression.h"
#include "Fc/Resource/Geometry/FcPointOnCurve.h"
#include "Fc/Resource/Geometry/FcPointOnSurface.h"
#include "Fc/Resource/Geometry/FcRectangularTrimmedSurface.h"
#include "Fc/Resource/Geometry/FcTrimmedCurve.h"
#include "Fc/Resource/Measure/FcDerivedUnit.h"
#include "Fc/Resource/Measure/FcDerivedUnitElement.h"
#include "Fc/Resource/Measure/FcDimensionalExponents.h"
#include "Fc/Resource/Measure/FcMeasureWithUnit.h"
#include "Fc/Resource/Measure/FcMonetaryUnit.h"
#include "Fc/Resource/Measure/FcNamedUnit.h"
#include "Fc/Resource/Measure/FcUnitAssignment.h"
#include "Fc/Resource/Property/FcPropertyBoundedValue.h"
#include "Fc/Resource/Property/FcPropertyEnumeratedValue.h"
#include "Fc/Resource/Property/FcPropertyEnumeration.h"
#include "Fc/Resource/Property/FcPropertyListValue.h"
#include "Fc/Resource/Property/FcPropertySingleValue.h"
#include "Fc/Resource/Property/FcPropertyTableValue.h"
#include "Fc/Resource/Quantity/FcPhysicalSimpleQuantity.h"
#include "Fc/Resource/Representation/FcCoordinateOperation.h"
#include "Fc/Resource/Utility/FcTable.h"
#include "Fc/Resource/Utility/FcTableRow.h"

namespace qor::host::step {

using namespace fc::resource::datetime;
using namespace fc::resource::geometricmodel;
using namespace fc::resource::geometry;
using namespace fc::resource::measure;
using namespace fc::resource::property;
using namespace fc::resource::utility;
using fc::core::kernel::FcContext;
using fc::resource::quantity::FcPhysicalSimpleQuantity;
using fc::resource::representation::FcCoordinateOperation;

namespace {

template <class... T>
bool isOneOf(const fc::ClassInfo& info) {
  return (T::info().contains(info.classId) || ...);
}

}  // namespace

UnitRole unitRoleOf(const fc::ClassInfo& info) {
  if (isOneOf<FcContext, FcUnitAssignment, FcNamedUnit, FcDerivedUnit, FcDerivedUnitElement,
              FcMonetaryUnit, FcMeasureWithUnit, FcDimensionalExponents>(info))
    return UnitRole::unit;
  if (isOneOf<FcPropertySingleValue, FcPropertyBoundedValue, FcPropertyListValue,
              FcPropertyTableValue, FcPhysicalSimpleQuantity>(info))
    return UnitRole::ownUnit;
  if (isOneOf<FcPropertyEnumeratedValue, FcPropertyEnumeration, FcTimeSeries, FcTimeSeriesValue,
              FcIrregularTimeSeriesValue, FcTable, FcTableRow, FcCoordinateOperation>(info))
    return UnitRole::sharedUnit;
  if (isOneOf<FcTrimmedCurve, FcCurveSegment, FcSweptDiskSolid, FcDirectrixCurveSweptAreaSolid,
              FcPointOnCurve, FcPointOnSurface, FcPointByDistanceExpression,
              FcRectangularTrimmedSurface, FcPcurve>(info))
    return UnitRole::parameter;
  return UnitRole::none;
}

}  // namespace qor::host::step
