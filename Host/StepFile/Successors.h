#pragma once

#include <string_view>

#include "Host/StepFile/OlderSchemas.h"

namespace qor::host::step {

/// What rows of the table of older classes need beside their attributes: conditions on the text of
/// an instance, and what follows for the class that it becomes.

/// Of an `IFCMAPCONVERSION` of ten attributes: its scales along the axes differ.
bool scalesUnequally(std::string_view parameters);
/// Gives an `IfcMapConversionScaled` its factors, from ScaleY and ScaleZ.
void completeScaledConversion(fc::FcBase& entity, KeptNumbers kept);

/// Gives a B-spline curve the knots of the pieces of Bezier curves of which its control points are.
/// Where these are no whole number of pieces, it stays without knots.
void completeBezierCurve(fc::FcBase& entity, KeptNumbers kept);

/// The base of a crane rail of form F is as wide as its head.
void completeCraneRailF(fc::FcBase& entity, KeptNumbers kept);

}  // namespace qor::host::step
