#include "Examples/Garden.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "Fc/Resource/GeometricModel/FcCartesianPointList3D.h"
#include "Fc/Resource/GeometricModel/FcTriangulatedFaceSet.h"

namespace sample {

using namespace qor::fc::resource::geometricmodel;
using fc::resource::measure::FcPositiveInteger;

namespace {

constexpr double step = 2;  // metres from point to point
constexpr int columns = 11;
constexpr int rows = 9;
constexpr double underside = -1;

/// From 0 to 1 without a bend at either end.
double gently(double part) {
  const double t = std::clamp(part, 0.0, 1.0);
  return t * t * (3 - 2 * t);
}

double height(double x, double y) {
  const double rise = 0.6 * gently((y - 12) / 6), fall = 0.4 * gently((6 - y) / 6);
  const double knoll = 0.4 * gently((x - 15) / 7);
  return std::round((rise - fall + knoll - 0.15) * 1000) / 1000;
}

/// Position in the list of points, from 1 on: all of the surface, then all below them.
FcPositiveInteger surface(int column, int row) { return row * (columns + 1) + column + 1; }
FcPositiveInteger below(int column, int row) {
  return surface(column, row).value() + (columns + 1) * (rows + 1);
}

using Triangles = std::vector<std::array<FcPositiveInteger, 3>>;

/// Corners counter-clockwise for one who looks at the outside.
void addQuad(Triangles& triangles, FcPositiveInteger a, FcPositiveInteger b, FcPositiveInteger c,
             FcPositiveInteger d) {
  triangles.push_back({a, b, c});
  triangles.push_back({a, c, d});
}

std::shared_ptr<FcCartesianPointList3D> createPoints(ModelBuilder& model) {
  auto points = model.create<FcCartesianPointList3D>();
  for (const bool isSurface : {true, false})
    for (int row = 0; row <= rows; ++row)
      for (int column = 0; column <= columns; ++column) {
        const double x = column * step, y = row * step;
        points->pushBackPoint({x, y, isSurface ? height(x, y) : underside});
      }
  return points;
}

Triangles createTriangles() {
  Triangles triangles;
  for (int row = 0; row < rows; ++row)
    for (int column = 0; column < columns; ++column) {
      addQuad(triangles, surface(column, row), surface(column + 1, row),
              surface(column + 1, row + 1), surface(column, row + 1));
      addQuad(triangles, below(column, row), below(column, row + 1), below(column + 1, row + 1),
              below(column + 1, row));
    }
  const auto addSide = [&](int fromColumn, int fromRow, int toColumn, int toRow) {
    addQuad(triangles, below(fromColumn, fromRow), below(toColumn, toRow), surface(toColumn, toRow),
            surface(fromColumn, fromRow));
  };
  for (int column = 0; column < columns; ++column) {
    addSide(column, 0, column + 1, 0);
    addSide(column + 1, rows, column, rows);
  }
  for (int row = 0; row < rows; ++row) {
    addSide(columns, row, columns, row + 1);
    addSide(0, row + 1, 0, row);
  }
  return triangles;
}

}  // namespace

Item createMeadow(ModelBuilder& model) {
  auto meadow = model.create<FcTriangulatedFaceSet>();
  meadow->setCoordinates(createPoints(model));
  meadow->setClosed(true);
  meadow->setCoordIndex(createTriangles());
  return meadow;
}

std::shared_ptr<FcGeographicElementType> createAppleTree(ModelBuilder& model,
                                                         ShapeBuilder& shapes) {
  auto type = model.createRoot<FcGeographicElementType>("Apple tree");
  type->setPredefinedType(FcGeographicElementTypeEnum::VEGETATION);
  const auto crown = [&](const math::Point3d& centre, double radius) {
    return shapes.painted(substance::leaves, shapes.sphere(centre, radius));
  };
  const Item trunk = shapes.painted(substance::oak, shapes.extrude(shapes.circle(0.14), 1.8));
  shapes.setBody(
      *type, RepresentationType::SolidModel,
      {trunk, crown({0, 0, 2.7}, 1.3), crown({0.8, 0.3, 2.2}, 0.9), crown({-0.7, 0.5, 2.3}, 0.9)});
  return type;
}

}  // namespace sample
