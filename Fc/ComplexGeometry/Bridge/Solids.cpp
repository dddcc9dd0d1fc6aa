#include "Fc/ComplexGeometry/Bridge/Solids.h"

#include <BRepBuilderAPI_MakeSolid.hxx>
#include <BRepLib.hxx>
#include <BRep_Builder.hxx>
#include <BRep_Tool.hxx>
#include <TopoDS.hxx>
#include <TopoDS_Compound.hxx>
#include <TopoDS_Iterator.hxx>
#include <TopoDS_Solid.hxx>

namespace qor::fc {
namespace {

TopoDS_Shape solidOf(const TopoDS_Shell& shell) {
  if (!BRep_Tool::IsClosed(shell)) return shell;
  BRepBuilderAPI_MakeSolid maker(shell);
  if (!maker.IsDone()) return shell;
  TopoDS_Solid solid = maker.Solid();
  BRepLib::OrientClosedSolid(solid);
  return solid;
}

}  // namespace

TopoDS_Shape solidsOfClosedShells(const TopoDS_Shape& shape) {
  if (shape.IsNull()) return shape;
  if (shape.ShapeType() == TopAbs_SHELL) return solidOf(TopoDS::Shell(shape));
  if (shape.ShapeType() != TopAbs_COMPOUND) return shape;
  TopoDS_Compound compound;
  const BRep_Builder builder;
  builder.MakeCompound(compound);
  for (TopoDS_Iterator part(shape); part.More(); part.Next())
    builder.Add(compound, solidsOfClosedShells(part.Value()));
  return compound;
}

}  // namespace qor::fc
