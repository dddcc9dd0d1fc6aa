#pragma once

#include <TopoDS_Shape.hxx>

namespace qor::fc {

/// A closed shell as the solid within it, whichever way its faces look; a compound with each of its
/// closed shells as one. Any other shape as it is. Throws `Standard_Failure`.
TopoDS_Shape solidsOfClosedShells(const TopoDS_Shape& shape);

}  // namespace qor::fc
