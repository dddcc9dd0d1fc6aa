#pragma once

#include "Fc/Data.h"
#include "Host/Cli/AttributeValue.h"
#include "Host/Targets/Scene.h"

namespace qor::host::cli {

/// Gives the objects of a scene, drawn from this model, their parents in the model's tree. What
/// leads to drawn objects and isn't in the scene, such as the project, is added behind them.
void arrangeAsTree(targets::Scene& scene, const fc::Data& data, const NumberOf& numberOf);

}  // namespace qor::host::cli
