#include "Fc/Resource/Geometry/FcTrimmedCurve.h"

#include "Fc/Model/Nesting.h"
#include "Fc/Model/Report.h"
#include "Fc/Resource/Geometry/CurveTrimming.h"

namespace qor::fc::resource::geometry {

using math::Point2d;
using math::Point3d;

bool FcTrimmedCurve::validateAttributes() const {
  const bool basis =
      requireThat(*this, BasisCurve() != nullptr, "FcTrimmedCurve::BasisCurve is required");
  const bool first = requireThat(*this, !Trim1().empty(), "FcTrimmedCurve::Trim1 is required");
  const bool second = requireThat(*this, !Trim2().empty(), "FcTrimmedCurve::Trim2 is required");
  return basis && first && second;
}

const FcTrimmingSelect& FcTrimmedCurve::chosen(const std::vector<FcTrimmingSelect>& trims) const {
  const auto wanted = MasterRepresentation() == FcTrimmingPreference::CARTESIAN
                          ? FcTrimmingSelect::Types::CartesianPoint
                          : FcTrimmingSelect::Types::ParameterValue;
  if (trims.size() > 1)
    for (const FcTrimmingSelect& trim : trims)
      if (trim.type() == wanted) return trim;
  return trims.front();
}

bool FcTrimmedCurve::isClosed(const FcParams& /*params*/) const { return false; }

bool FcTrimmedCurve::is2d() const {
  const Nesting nesting(Nesting::Kind::curve, *this);
  return nesting && BasisCurve() && BasisCurve()->is2d();
}

std::optional<std::vector<Point2d>> FcTrimmedCurve::curve2d(const FcParams& params,
                                                            const Trim& trim1, const Trim& trim2,
                                                            bool reverse) const {
  const Nesting nesting(Nesting::Kind::curve, *this);
  if (!nesting || !expectWhole(trim1, trim2, reverse, "FcTrimmedCurve::curve2d") ||
      !validateAttributes())
    return {};
  return BasisCurve()->curve2d(params, chosen(Trim1()), chosen(Trim2()), !SenseAgreement());
}

std::vector<Point3d> FcTrimmedCurve::curveGet(const FcParams& params, const Trim& trim1,
                                              const Trim& trim2, bool reverse) const {
  const Nesting nesting(Nesting::Kind::curve, *this);
  if (!nesting || !expectWhole(trim1, trim2, reverse, "FcTrimmedCurve::curveGet") ||
      !validateAttributes())
    return {};
  return BasisCurve()->curveGet(params, chosen(Trim1()), chosen(Trim2()), !SenseAgreement());
}

std::vector<std::pair<double, FcCurve::ParameterType>> FcTrimmedCurve::parametricSegments() const {
  return {{1.0, ParameterType::length}};
}

std::optional<math::Extent2d> FcTrimmedCurve::planarBox(const FcParams& params) const {
  const Nesting nesting(Nesting::Kind::curve, *this);
  if (!nesting || !validateAttributes()) return {};
  return BasisCurve()->planarBox(params);
}

}  // namespace qor::fc::resource::geometry
