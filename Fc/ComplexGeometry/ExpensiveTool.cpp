#include "Fc/ComplexGeometry/ExpensiveTool.h"

#include "Fc/Resource/GeometricModel/FcBooleanOperand.h"
#include "Fc/Resource/GeometricModel/FcManifoldSolidBrep.h"
#include "Fc/Resource/GeometricModel/FcTessellatedFaceSet.h"

namespace qor::fc {

bool isExpensiveTool(const resource::geometry::FcRepresentationItem& item) {
  return fcCast<resource::geometricmodel::FcTessellatedFaceSet>(&item) ||
         fcCast<resource::geometricmodel::FcManifoldSolidBrep>(&item);
}

bool isExpensiveTool(const resource::geometricmodel::FcBooleanOperand& operand) {
  const auto* item = fcCast<resource::geometry::FcRepresentationItem>(operand.getEntity());
  return item && isExpensiveTool(*item);
}

}  // namespace qor::fc
