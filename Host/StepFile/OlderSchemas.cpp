#include "Host/StepFile/OlderSchemas.h"

#include <array>

#include "Host/StepFile/SchemaMap.h"

namespace qor::host::step {

namespace {

constexpr auto ifc2x3 = static_cast<std::uint8_t>(SchemaVersion::ifc2x3);
constexpr auto ifc4 = static_cast<std::uint8_t>(SchemaVersion::ifc4);
constexpr std::uint8_t upToIfc4 = ifc2x3 | ifc4;

constexpr std::array rows = {
    OlderClass{upToIfc4, "IFCPRESENTATIONSTYLEASSIGNMENT", unwrapped},
};

}  // namespace

std::span<const OlderClass> olderClasses() { return rows; }

}  // namespace qor::host::step
