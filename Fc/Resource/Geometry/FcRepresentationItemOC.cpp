#include <TopoDS_Shape.hxx>

#include "Fc/NotImplemented.h"
#include "Fc/Resource/Geometry/FcRepresentationItem.h"

namespace qor::fc::resource::geometry {

std::vector<TopoDS_Shape> FcRepresentationItem::ocRepresentation(const FcParams& /*params*/) const {
  assertNotImplemented("ocRepresentation(const qor::fc::FcParams&) not implemented for class: ",
                       *this, "FcRepresentationItem::ocRepresentation");
  return {};
}

}  // namespace qor::fc::resource::geometry
