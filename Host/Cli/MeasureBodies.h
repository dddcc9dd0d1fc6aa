#pragma once

#include "Fc/FcParams.h"
#include "Host/Cli/Console.h"
#include "Host/Cli/MeasureCommand.h"
#include "Host/StepFile/StepReader.h"

namespace qor::host::cli {

/// `fctool measure --surfaces`: the outlines of the planar faces of each product's body.
ExitCode measureSurfaces(const step::ReadResult& model, const MeasureOptions& options,
                         const fc::FcParams& params, Console& console);

/// `fctool measure --distance`: how far the bodies of two products are from each other.
ExitCode measureDistance(const step::ReadResult& model, const MeasureOptions& options,
                         const fc::FcParams& params, Console& console);

}  // namespace qor::host::cli
