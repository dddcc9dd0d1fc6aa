#pragma once

#include <memory>

// The types of Open CASCADE that stand in the interfaces of items, for headers that don't include
// its own.
namespace opencascade {
template <class T>
class handle;
}
class Geom_Curve;
class Geom_Surface;
class TopoDS_Edge;
class TopoDS_Face;
class TopoDS_Shape;
class TopoDS_Vertex;
class TopoDS_Wire;

namespace qor::fc {

class ocMemoizer;

/// Null when there is no such curve or surface; the handle in it never is.
using OcCurve = std::shared_ptr<opencascade::handle<Geom_Curve>>;
using OcSurface = std::shared_ptr<opencascade::handle<Geom_Surface>>;

}  // namespace qor::fc
