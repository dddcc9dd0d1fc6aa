#pragma once

#include <BRepCheck_Analyzer.hxx>
#include <BRepGProp.hxx>
#include <GProp_GProps.hxx>
#include <TopExp_Explorer.hxx>
#include <TopoDS_Shape.hxx>
#include <vector>

// What tests ask of shapes of the solid modeller.
namespace qor::test {

/// In cubic metres; negative for a solid that is inside out.
inline double volumeOf(const TopoDS_Shape& shape) {
  GProp_GProps properties;
  BRepGProp::VolumeProperties(shape, properties);
  return properties.Mass();
}

inline double volumeOf(const std::vector<TopoDS_Shape>& shapes) {
  double volume = 0;
  for (const TopoDS_Shape& shape : shapes)
    if (!shape.IsNull()) volume += volumeOf(shape);
  return volume;
}

inline int countOf(const TopoDS_Shape& shape, TopAbs_ShapeEnum kind) {
  int count = 0;
  for (TopExp_Explorer parts(shape, kind); parts.More(); parts.Next()) ++count;
  return count;
}

inline bool isValid(const TopoDS_Shape& shape) { return BRepCheck_Analyzer(shape).IsValid(); }

}  // namespace qor::test
