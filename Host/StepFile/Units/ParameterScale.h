#pragma once

#include <optional>
#include <utility>

#include "Fc/Resource/Geometry/FcCompositeCurve.h"
#include "Fc/Resource/Geometry/FcCurve.h"
#include "Fc/Resource/Geometry/FcSurface.h"
#include "Fc/Resource/Geometry/FcTrimmedCurve.h"
#include "Host/StepFile/Units/UnitConversion.h"

namespace qor::host::step {

/// What becomes of the parameters of curves and surfaces when lengths and angles become SI: they
/// are angles on conics and on what turns about an axis, lengths on spirals and planes, and plain
/// numbers on all else, a line too, whose vector is a length.
///
/// On a composite curve the parameter runs through those of its segments, one after the other: each
/// part of it is converted as that of its segment.
class ParameterScale {
 public:
  ParameterScale(const UnitConversion& length, const UnitConversion& angle)
      : m_length(length), m_angle(angle) {}

  /// The parameter in SI. Lengths must be converted already, and the trims of segments not yet.
  /// Empty for a composite curve with segments whose parameters can't be counted.
  std::optional<double> convert(const fc::resource::geometry::FcCurve* curve,
                                double parameter) const;
  /// Of curves that aren't composed.
  UnitConversion of(const fc::resource::geometry::FcCurve* curve) const;
  /// Of the two parameters of a surface.
  std::pair<UnitConversion, UnitConversion> of(
      const fc::resource::geometry::FcSurface* surface) const;

 private:
  using Curve = fc::resource::geometry::FcCurve;

  /// The segments of a composite curve inside of composite curves may be so deep.
  static constexpr int maxDepth = 20;

  /// A piece of a composite curve: how far the parameter runs on it, in units of the file.
  struct Piece {
    double range;
    UnitConversion conversion;  ///< for a curve that isn't composed
    const Curve* curve;
  };

  std::optional<double> convert(const Curve* curve, double parameter, int depth) const;
  std::optional<double> range(const Curve* curve, int depth) const;
  std::optional<Piece> piece(const fc::FcBase* segment, int depth) const;
  std::optional<double> rangeOfTrims(const fc::resource::geometry::FcTrimmedCurve& curve) const;

  UnitConversion m_length;
  UnitConversion m_angle;
};

}  // namespace qor::host::step
