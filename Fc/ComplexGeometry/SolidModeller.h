#pragma once

#include <memory>
#include <optional>
#include <utility>
#include <vector>

#include "Fc/Model/OpenCascadeTypes.h"
#include "Qor/Draw/PolygonalFaceSetOpenGL.h"
#include "Qor/Math/Extent.h"
#include "Qor/Math/Matrix.h"
#include "Qor/Math/Polygon.h"
#include "Qor/Platform/Export.h"

namespace qor::fc {

class FcParams;

namespace resource::geometry {
class FcCurve;
class FcRepresentationItem;
class FcSurface;
}  // namespace resource::geometry
namespace resource::profile {
class FcProfileDef;
}
namespace resource::representation {
class FcRepresentation;
}
namespace resource::topology {
class FcEdge;
class FcVertex;
}  // namespace resource::topology

/// What the engine asks of Open CASCADE. The one implementation lies in a library of its own,
/// FcOpenCascade, which is opened when the first shape is asked for: a program that makes none
/// starts without Open CASCADE's dozen libraries.
///
/// All operations may be called from any thread. What can't be made is reported, and gives nothing.
class QOR_API SolidModeller {
 public:
  using Item = std::shared_ptr<const resource::geometry::FcRepresentationItem>;
  using PlacedItem = std::pair<Item, math::Matrix>;
  using FaceSets = std::vector<generate::draw::PolygonalFaceSetOpenGL>;

  virtual ~SolidModeller();

  /// Opens FcOpenCascade at the first call. Null, with an assert at that call, when it isn't where
  /// the engine's own library is, or can't be loaded.
  static const SolidModeller* get();

  // What the operations of items of the same purpose give: `ocRepresentation`, `ocProfile`,
  // `ocCurve`, `ocSurface`, `ocEdge` and `ocVertex`. A class without a form of its own is reported.
  virtual std::vector<TopoDS_Shape> shapes(const resource::geometry::FcRepresentationItem& item,
                                           const FcParams& params) const = 0;
  virtual std::vector<TopoDS_Shape> shapes(
      const resource::representation::FcRepresentation& representation,
      const FcParams& params) const = 0;
  virtual std::vector<TopoDS_Face> faces(const resource::profile::FcProfileDef& profile,
                                         const FcParams& params) const = 0;
  virtual OcCurve curve(const resource::profile::FcProfileDef& profile,
                        ocMemoizer& memoizer) const = 0;
  virtual OcCurve curve(const resource::geometry::FcCurve& curve, ocMemoizer& memoizer) const = 0;
  virtual OcSurface surface(const resource::geometry::FcSurface& surface,
                            ocMemoizer& memoizer) const = 0;
  virtual std::shared_ptr<TopoDS_Edge> edge(const resource::topology::FcEdge& edge,
                                            ocMemoizer& memoizer) const = 0;
  virtual std::shared_ptr<TopoDS_Vertex> vertex(const resource::topology::FcVertex& vertex,
                                                ocMemoizer& memoizer) const = 0;

  // What the tasks of the complex geometry processor do, without shapes in the interface.
  virtual FaceSets faceSets(const resource::geometry::FcRepresentationItem& item,
                            const FcParams& params) const = 0;
  /// Round the shapes of the item; not valid where it has none.
  virtual math::Extent boxOf(const resource::geometry::FcRepresentationItem& item,
                             const FcParams& params) const = 0;
  /// What the tools leave of the item, in its frame; empty where the item has no shape.
  virtual std::optional<FaceSets> cut(const PlacedItem& item, const std::vector<PlacedItem>& tools,
                                      const FcParams& params) const = 0;
  /// The outlines of planar faces, times the item's frame.
  virtual std::vector<math::_3d::Polygon> surfaces(const PlacedItem& item,
                                                   const FcParams& params) const = 0;
  /// Metres; empty where one has no shape.
  virtual std::optional<double> distance(const PlacedItem& first, const PlacedItem& second,
                                         const FcParams& params) const = 0;
};

}  // namespace qor::fc
