#include "Fc/ComplexGeometry/FcCalculateDistanceTask.h"

#include <BRepExtrema_DistShapeShape.hxx>
#include <optional>
#include <utility>
#include <vector>

#include "Fc/ComplexGeometry/FcDoubleResult.h"
#include "Fc/ComplexGeometry/ShapesOfItem.h"

namespace qor::fc {
namespace {

std::vector<TopoDS_Shape> placedShapes(const resource::geometry::FcRepresentationItem& item,
                                       const math::Matrix& matrix, const FcParams& params) {
  std::vector<TopoDS_Shape> shapes = shapesOfItem(item, params);
  for (TopoDS_Shape& shape : shapes) transformOpenCascadeShape(shape, matrix);
  return shapes;
}

// Empty when the calculation fails, which says nothing of the distance.
std::optional<double> distance(const TopoDS_Shape& first, const TopoDS_Shape& second) {
  if (first.IsNull() || second.IsNull()) return {};
  std::optional<double> result;
  guardOpenCascade(
      [&] {
        const BRepExtrema_DistShapeShape extrema(first, second, Extrema_ExtFlag_MINMAX,
                                                 Extrema_ExtAlgo_Grad);
        if (extrema.IsDone()) result = extrema.Value();
      },
      "OpenCascade could not calculate the distance of two shapes.");
  return result;
}

}  // namespace

FcCalculateDistanceTask::FcCalculateDistanceTask(FcParams params, Item firstItem, Item secondItem,
                                                 const math::Matrix& firstMatrix,
                                                 const math::Matrix& secondMatrix)
    : FcComplexGeometryTask(std::move(params)),
      m_firstItem(std::move(firstItem)),
      m_secondItem(std::move(secondItem)),
      m_firstMatrix(firstMatrix),
      m_secondMatrix(secondMatrix) {}

FcCalculateDistanceTask::~FcCalculateDistanceTask() = default;

std::unique_ptr<FcComplexGeometryTaskResult> FcCalculateDistanceTask::process() const {
  const auto firstShapes = placedShapes(*m_firstItem, m_firstMatrix, params());
  const auto secondShapes = placedShapes(*m_secondItem, m_secondMatrix, params());
  std::optional<double> least;
  for (const TopoDS_Shape& first : firstShapes) {
    for (const TopoDS_Shape& second : secondShapes) {
      const auto found = distance(first, second);
      if (found && (!least || *found < *least)) least = found;
    }
  }
  return least ? std::make_unique<FcDoubleResult>(*least) : nullptr;
}

}  // namespace qor::fc
