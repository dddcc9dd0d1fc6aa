#pragma once

#include "Qor/Platform/Export.h"

namespace qor::fc {

namespace resource::geometry {
class FcRepresentationItem;
}
namespace resource::geometricmodel {
class FcBooleanOperand;
}

/// The tool is of a class whose cuts may take long: a tessellated face set or a boundary
/// representation.
QOR_API bool isExpensiveTool(const resource::geometry::FcRepresentationItem& item);
/// As that of the operand's item; false for an operand without one.
QOR_API bool isExpensiveTool(const resource::geometricmodel::FcBooleanOperand& operand);

}  // namespace qor::fc
