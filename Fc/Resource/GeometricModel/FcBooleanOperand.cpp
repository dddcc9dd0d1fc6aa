#include "Fc/Resource/GeometricModel/FcBooleanOperand.h"

#include "Fc/Model/Report.h"
#include "Fc/Resource/GeometricModel/FcBooleanResult.h"
#include "Fc/Resource/GeometricModel/FcCsgPrimitive3D.h"
#include "Fc/Resource/GeometricModel/FcHalfSpaceSolid.h"
#include "Fc/Resource/GeometricModel/FcPolygonalFaceSet.h"
#include "Fc/Resource/GeometricModel/FcSweptAreaSolid.h"
#include "Fc/Resource/GeometricModel/FcTriangulatedFaceSet.h"

namespace qor::fc::resource::geometricmodel {
namespace {

using Types = FcBooleanOperand::Types;

// The item as a `T` when the alternative is the one asked for and there is one.
template <class T>
std::shared_ptr<T> asserted(const FcBooleanOperand& operand, Types type, const char* wrongType,
                            const char* missing) {
  if (operand.type() != type) {
    report(wrongType);
    return nullptr;
  }
  auto* item = fcCast<T>(operand.getEntity());
  if (!item) {
    report(missing);
    return nullptr;
  }
  return std::static_pointer_cast<T>(item->shared_from_this());
}

// Says whether it is closed; nothing for a class of face sets that can't say.
std::optional<bool> isClosed(const FcTessellatedFaceSet& faceSet) {
  if (const auto* polygons = fcCast<FcPolygonalFaceSet>(&faceSet))
    return polygons->Closed() && *polygons->Closed();
  if (const auto* triangles = fcCast<FcTriangulatedFaceSet>(&faceSet))
    return triangles->Closed() && *triangles->Closed();
  return {};
}

}  // namespace

FcBooleanOperand FcBooleanOperand::fromRepresentationItem(
    const std::shared_ptr<geometry::FcRepresentationItem>& item) {
  if (auto solid = fcCast<FcSolidModel>(item)) return {solid};
  if (auto halfSpace = fcCast<FcHalfSpaceSolid>(item)) return {halfSpace};
  if (auto primitive = fcCast<FcCsgPrimitive3D>(item)) return {primitive};
  if (auto result = fcCast<FcBooleanResult>(item)) return {result};
  if (auto faceSet = fcCast<FcTessellatedFaceSet>(item)) return {faceSet};
  return {};
}

std::shared_ptr<FcBooleanResult> FcBooleanOperand::BooleanResultAssert() const {
  return asserted<FcBooleanResult>(*this, Types::BooleanResult,
                                   "Expect operand to be a boolean result.",
                                   "Expect to have a valid boolean result.");
}

std::shared_ptr<FcCsgPrimitive3D> FcBooleanOperand::CsgPrimitive3DAssert() const {
  return asserted<FcCsgPrimitive3D>(*this, Types::CsgPrimitive3D,
                                    "Expect operand to be a Csg primitive 3D.",
                                    "Expect to have a valid Csg primitive 3D.");
}

std::shared_ptr<FcHalfSpaceSolid> FcBooleanOperand::HalfSpaceSolidAssert() const {
  return asserted<FcHalfSpaceSolid>(*this, Types::HalfSpaceSolid,
                                    "Expect operand to be a half space solid.",
                                    "Expect to have a valid half space solid.");
}

std::shared_ptr<FcSolidModel> FcBooleanOperand::SolidModelAssert() const {
  return asserted<FcSolidModel>(*this, Types::SolidModel, "Expect operand to be a solid model.",
                                "Expect to have a valid solid model.");
}

std::shared_ptr<FcSweptAreaSolid> FcBooleanOperand::SweptAreaSolidAssert() const {
  return asserted<FcSweptAreaSolid>(*this, Types::SolidModel, "Expect operand to be a solid model.",
                                    "Expect to have a valid swept area solid.");
}

std::shared_ptr<FcTessellatedFaceSet> FcBooleanOperand::TessellatedFaceSetAssert() const {
  auto faceSet = asserted<FcTessellatedFaceSet>(*this, Types::TessellatedFaceSet,
                                                "Expect operand to be a tessellated face set.",
                                                "Expect to have a valid tessellated face set.");
  if (!faceSet) return nullptr;
  const auto closed = isClosed(*faceSet);
  if (closed && *closed) return faceSet;
  report(
      closed
          ? "Assertion failed: Tessellated face set must be closed if used in boolean operations"
          : "Assertion failed: Tessellated face set is neither polygonal face set or triangulated "
            "face set");
  return nullptr;
}

std::shared_ptr<geometry::FcGeometricRepresentationItem>
FcBooleanOperand::asGeometricRepresentationItemNonConst() {
  switch (type()) {
    case Types::BooleanResult:
      return BooleanResultAssert();
    case Types::CsgPrimitive3D:
      return CsgPrimitive3DAssert();
    case Types::HalfSpaceSolid:
      return HalfSpaceSolidAssert();
    case Types::SolidModel:
      return SolidModelAssert();
    case Types::TessellatedFaceSet:
      return TessellatedFaceSetAssert();
    case Types::NotSet:
      break;
  }
  report(
      "Assertion failed: boolean operand not set when requesting as asserted geometric "
      "representation item");
  return nullptr;
}

std::shared_ptr<const geometry::FcGeometricRepresentationItem>
FcBooleanOperand::asGeometricRepresentationItemAssert() const {
  return FcBooleanOperand(*this).asGeometricRepresentationItemNonConst();
}

std::optional<math::Extent> FcBooleanOperand::boundingBox(const FcParams& params) const {
  const auto item = asGeometricRepresentationItemAssert();
  return item ? item->boundingBox(params) : std::nullopt;
}

}  // namespace qor::fc::resource::geometricmodel
