#pragma once

#include <cstddef>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "Examples/ModelBuilder.h"
#include "Fc/Core/Kernel/FcProject.h"
#include "Fc/Core/Kernel/FcTypeProduct.h"
#include "Fc/Resource/Geometry/FcCurve.h"
#include "Fc/Resource/Geometry/FcRepresentationMap.h"
#include "Fc/Resource/PresentationAppearance/FcSurfaceStyle.h"
#include "Fc/Resource/Profile/FcProfileDef.h"
#include "Fc/Resource/Representation/FcGeometricRepresentationSubContext.h"
#include "Fc/Resource/Representation/FcRepresentation.h"
#include "Qor/Draw/Representation.h"

namespace sample {

using namespace qor::fc::resource::geometry;
using namespace qor::fc::resource::representation;
using generate::draw::RepresentationIdentifier;
using generate::draw::RepresentationType;

using Item = std::shared_ptr<FcRepresentationItem>;
using Items = std::vector<Item>;
using Profile = std::shared_ptr<fc::resource::profile::FcProfileDef>;

/// What something is made of: a name for who counts, a colour for who looks.
struct Substance {
  const char* name;
  double red, green, blue;
  double transparency = 0;
};

namespace substance {
constexpr Substance brick{"Brick", 0.76, 0.47, 0.36};
constexpr Substance concrete{"Concrete", 0.75, 0.75, 0.73};
constexpr Substance slate{"Slate", 0.33, 0.37, 0.43};
constexpr Substance steel{"Steel", 0.30, 0.34, 0.38};
constexpr Substance paintedWood{"Painted wood", 0.96, 0.95, 0.92};
constexpr Substance oak{"Oak", 0.52, 0.33, 0.18};
constexpr Substance glass{"Glass", 0.60, 0.78, 0.88, 0.65};
constexpr Substance grass{"Grass", 0.50, 0.66, 0.36};
constexpr Substance leaves{"Leaves", 0.42, 0.64, 0.30};
}  // namespace substance

/// Makes geometry, gives it its look and hangs it on products. Lengths are in metres.
///
/// The road of a shape: a profile becomes a solid, the solid gets a colour, a representation holds
/// it for one purpose (the body, the axis), and the product's shape holds its representations.
class ShapeBuilder {
 public:
  /// Makes the contexts of bodies and axes, which are the project's.
  ShapeBuilder(ModelBuilder& model, FcProject& project);

  // Profiles: areas around the origin of the XY plane, or within a polygon.
  Profile rectangle(double width, double depth);
  Profile hollowRectangle(double width, double depth, double thickness);
  Profile circle(double radius);
  Profile ring(double radius, double thickness);
  Profile iShape(double width, double depth, double web, double flange, double fillet);
  Profile polygon(const std::vector<math::Point2d>& corners);
  Profile polygonWithHole(const std::vector<math::Point2d>& corners,
                          const std::vector<math::Point2d>& hole);

  // Solids
  /// The profile in the XY plane of `frame`, pushed along the frame's Z axis.
  Item extrude(const Profile& profile, double depth, const math::Matrix& frame = {});
  /// From `corner` along the axes.
  Item box(const math::Point3d& corner, double x, double y, double z);
  /// A rod of that radius along a path with rounded corners.
  Item rod(const std::vector<math::Point3d>& path, double radius, double rounding = 0);
  /// The solid without what lies above the XY plane of `plane`.
  Item cutOffAbove(const Item& solid, const math::Matrix& plane);
  Item sphere(const math::Point3d& centre, double radius);

  /// One style for each substance, however many items it is on. Gives the item back.
  Item painted(const Substance& substance, Item item);

  // Representations
  void showBody(FcProduct& product, RepresentationType type, Items items);
  /// The line that stands for a wall in plans and calculations, from and to in the wall's plane.
  void showAxis(FcProduct& product, const math::Point2d& from, const math::Point2d& to);
  /// What all occurrences of a type look like, held once: their bodies only say where it stands.
  void setBody(FcTypeProduct& type, RepresentationType kind, Items items);
  void showBodyOfType(FcProduct& product, const FcTypeProduct& type);

 private:
  using SubContext = std::shared_ptr<FcGeometricRepresentationSubContext>;

  std::shared_ptr<FcCurve> closedCurve(std::vector<math::Point2d> corners);
  std::shared_ptr<FcRepresentation> createRepresentation(const SubContext& context,
                                                         RepresentationIdentifier identifier,
                                                         RepresentationType type, Items items);
  void show(FcProduct& product, const std::shared_ptr<FcRepresentation>& representation);
  std::shared_ptr<fc::resource::presentationappearance::FcSurfaceStyle> createStyle(
      const Substance& substance);

  ModelBuilder& m_model;
  SubContext m_body;
  SubContext m_axis;
  std::map<std::string, std::shared_ptr<fc::resource::presentationappearance::FcSurfaceStyle>>
      m_styles;
};

}  // namespace sample
