#pragma once

#include "Fc/ComplexGeometry/SolidModeller.h"

namespace qor::fc {

/// The solid modeller by Open CASCADE. Each operation is defined where the forms of its family of
/// items are made: curves in Curves.cpp, profiles in Profiles.cpp, and so on.
class OpenCascadeModeller : public SolidModeller {
 public:
  std::vector<TopoDS_Shape> shapes(const resource::geometry::FcRepresentationItem& item,
                                   const FcParams& params) const override;
  std::vector<TopoDS_Shape> shapes(const resource::representation::FcRepresentation& representation,
                                   const FcParams& params) const override;
  std::vector<TopoDS_Face> faces(const resource::profile::FcProfileDef& profile,
                                 const FcParams& params) const override;
  OcCurve curve(const resource::profile::FcProfileDef& profile,
                ocMemoizer& memoizer) const override;
  OcCurve curve(const resource::geometry::FcCurve& curve, ocMemoizer& memoizer) const override;
  OcSurface surface(const resource::geometry::FcSurface& surface,
                    ocMemoizer& memoizer) const override;
  std::shared_ptr<TopoDS_Edge> edge(const resource::topology::FcEdge& edge,
                                    ocMemoizer& memoizer) const override;
  std::shared_ptr<TopoDS_Vertex> vertex(const resource::topology::FcVertex& vertex,
                                        ocMemoizer& memoizer) const override;
  FaceSets faceSets(const resource::geometry::FcRepresentationItem& item,
                    const FcParams& params) const override;
  math::Extent boxOf(const resource::geometry::FcRepresentationItem& item,
                     const FcParams& params) const override;
  std::optional<FaceSets> cut(const PlacedItem& item, const std::vector<PlacedItem>& tools,
                              const FcParams& params) const override;
  std::vector<math::_3d::Polygon> surfaces(const PlacedItem& item,
                                           const FcParams& params) const override;
  std::optional<double> distance(const PlacedItem& first, const PlacedItem& second,
                                 const FcParams& params) const override;
};

}  // namespace qor::fc

/// Where the engine finds it once this library is opened.
extern "C" QOR_API const qor::fc::SolidModeller* fcOpenCascadeModeller();
