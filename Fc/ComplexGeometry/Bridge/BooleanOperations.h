#pragma once

#include <TopoDS_Shape.hxx>
#include <vector>

#include "Qor/Platform/Export.h"

namespace qor::fc {

// Each reports, by one assert, that Open CASCADE has failed, and gives a null shape then. What is
// within the fuzzy value, in metres, of each other counts as touching.

/// All arguments without all tools, in one operation: a compound. Null arguments and tools are
/// passed over; there must be others.
///
/// A result that can't be right is none: one that is open where the body is closed, has more volume
/// than the body or less than the tools can leave, more area than both together, or reaches out of
/// the body's box. Then wider fuzzy values are tried, and the tools one by one. A tool that can't
/// be cut out at all is left out, with an assert: the body is still there. Null, with an assert,
/// for a body that is beyond reach.
QOR_API TopoDS_Shape cutShapes(const std::vector<TopoDS_Shape>& arguments,
                               const std::vector<TopoDS_Shape>& tools, double fuzzyValue);
/// What both have in common.
QOR_API TopoDS_Shape commonOfShapes(const TopoDS_Shape& a, const TopoDS_Shape& b);
/// Both as one.
QOR_API TopoDS_Shape fuseShapes(const TopoDS_Shape& a, const TopoDS_Shape& b);

}  // namespace qor::fc
