#pragma once

#include <TColStd_Array1OfInteger.hxx>
#include <TColStd_Array1OfReal.hxx>
#include <TColStd_Array2OfReal.hxx>
#include <TColgp_Array1OfPnt.hxx>
#include <TColgp_Array2OfPnt.hxx>
#include <gp_Pnt.hxx>
#include <stdexcept>
#include <vector>

#include "Fc/HelperFunctionsOC.h"
#include "Fc/Resource/Geometry/FcCartesianPoint.h"

// From the lists of a B-spline in the model to the arrays that Open CASCADE takes, which begin
// at 1. Each throws `std::invalid_argument` for a list that can't be one: empty, ragged, with a
// point missing; and `Standard_OutOfRange` for a point that is no place in a model.
namespace qor::fc::bspline {

template <class Points>
const auto& firstOf(const Points& points) {
  if (points.empty()) throw std::invalid_argument("a list without entries");
  return points.front();
}

template <class Array, class Numbers>
Array numbers(const Numbers& list) {
  firstOf(list);
  Array result(1, static_cast<int>(list.size()));
  for (int i = 1; i <= result.Upper(); ++i)
    result(i) = static_cast<typename Array::value_type>(list[static_cast<std::size_t>(i - 1)]);
  return result;
}

inline gp_Pnt pole(const std::shared_ptr<resource::geometry::FcCartesianPoint>& point) {
  if (!point) throw std::invalid_argument("a point is missing");
  const auto& at = point->Coordinates();
  return toOpenCascade(math::Point3d(at[0], at[1], at[2]));
}

template <class Points>
TColgp_Array1OfPnt poles(const Points& points) {
  firstOf(points);
  TColgp_Array1OfPnt result(1, static_cast<int>(points.size()));
  int i = 0;
  for (const auto& point : points) result(++i) = pole(point);
  return result;
}

/// The rows run along U.
template <class Array, class Rows, class Convert>
Array grid(const Rows& rows, const Convert& convert) {
  const std::size_t columns = firstOf(rows).size();
  if (columns == 0) throw std::invalid_argument("a row without entries");
  Array result(1, static_cast<int>(rows.size()), 1, static_cast<int>(columns));
  for (std::size_t u = 0; u < rows.size(); ++u) {
    if (rows[u].size() != columns) throw std::invalid_argument("rows of different lengths");
    for (std::size_t v = 0; v < columns; ++v)
      result(static_cast<int>(u) + 1, static_cast<int>(v) + 1) = convert(rows[u][v]);
  }
  return result;
}

template <class Rows>
TColgp_Array2OfPnt poleGrid(const Rows& rows) {
  return grid<TColgp_Array2OfPnt>(rows, [](const auto& point) { return pole(point); });
}

template <class Rows>
TColStd_Array2OfReal weightGrid(const Rows& rows) {
  return grid<TColStd_Array2OfReal>(rows,
                                    [](const auto& weight) { return static_cast<double>(weight); });
}

}  // namespace qor::fc::bspline
