#pragma once

#include <TopoDS_Shape.hxx>
#include <vector>

#include "Qor/Platform/Export.h"

namespace qor::fc {

// Each reports, by one assert, that Open CASCADE has failed, and gives a null shape then. What is
// within the fuzzy value, in metres, of each other counts as touching.

/// All arguments without all tools, in one operation: a compound. Null arguments and tools are
/// passed over; there must be others.
QOR_API TopoDS_Shape cutShapes(const std::vector<TopoDS_Shape>& arguments,
                               const std::vector<TopoDS_Shape>& tools, double fuzzyValue);
/// What both have in common.
QOR_API TopoDS_Shape commonOfShapes(const TopoDS_Shape& a, const TopoDS_Shape& b);
/// Both as one.
QOR_API TopoDS_Shape fuseShapes(const TopoDS_Shape& a, const TopoDS_Shape& b);

}  // namespace qor::fc
