#include <TopoDS_Shape.hxx>
#include <iterator>

#include "Fc/Resource/Geometry/FcRepresentationItem.h"
#include "Fc/Resource/Representation/FcRepresentation.h"

namespace qor::fc::resource::representation {

std::vector<TopoDS_Shape> FcRepresentation::ocRepresentation(const FcParams& params) const {
  std::vector<TopoDS_Shape> shapes;
  for (const auto& item : Items()) {
    if (!item) continue;
    auto more = item->ocRepresentation(params);
    shapes.insert(shapes.end(), std::make_move_iterator(more.begin()),
                  std::make_move_iterator(more.end()));
  }
  return shapes;
}

}  // namespace qor::fc::resource::representation
