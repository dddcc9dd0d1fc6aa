#pragma once

#include <TopoDS_Shape.hxx>
#include <vector>

#include "Fc/HelperFunctionsOC.h"
#include "Fc/Resource/Geometry/FcRepresentationItem.h"

namespace qor::fc {

/// The item's `ocRepresentation`; none, with an assert, when Open CASCADE fails in it.
inline std::vector<TopoDS_Shape> shapesOfItem(const resource::geometry::FcRepresentationItem& item,
                                              const FcParams& params) {
  std::vector<TopoDS_Shape> shapes;
  guardOpenCascade([&] { shapes = item.ocRepresentation(params); },
                   "OpenCascade could not make the shapes of an item.");
  return shapes;
}

}  // namespace qor::fc
