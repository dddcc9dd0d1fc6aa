#include "Schema/Generator/Groups.h"

#include <algorithm>
#include <cctype>
#include <stdexcept>

namespace qor::schema {

namespace {

constexpr Group groups[] = {
    {"core::kernel", "Kernel", "Core.Kernel"},
    {"core::controlextension", "Control Extension", "Core.Control Extension"},
    {"core::processextension", "Process Extension", "Core.Process Extension"},
    {"core::productextension", "Product Extension", "Core.Product Extension"},
    {"domain::architecture", "Architecture", "Domain.Architecture"},
    {"domain::buildingcontrols", "Building Controls", "Domain.Building Controls"},
    {"domain::constructionmanagement", "Construction Management", "Domain.Construction Management"},
    {"domain::electrical", "Electrical", "Domain.Electrical"},
    {"domain::hvac", "Hvac", "Domain.Hvac"},
    {"domain::plumbingfireprotection", "Plumbing Fire Protection",
     "Domain.Plumbing Fire Protection"},
    {"domain::portsandwaterways", "Ports and Waterways", "Domain.Ports and Waterways"},
    {"domain::rail", "Rail", "Domain.Rail"},
    {"domain::road", "Road", "Domain.Road"},
    {"domain::structuralanalysis", "Structural Analysis", "Domain.Structural Analysis"},
    {"domain::structuralelements", "Structural Elements", "Domain.Structural Elements"},
    {"shared::buildingelements", "Building Elements", "Shared.Building Elements"},
    {"shared::buildingserviceelements", "Building Service Elements",
     "Shared.Building Service Elements"},
    {"shared::componentelements", "Component Elements", "Shared.Component Elements"},
    {"shared::facilitieselements", "Facilities Elements", "Shared.Facilities Elements"},
    {"shared::infrastructureelements", "Infrastructure Elements", "Shared.Infrastructure Elements"},
    {"shared::managementelements", "Management Elements", "Shared.Management Elements"},
    {"resource::actor", "Actor", "Resource.Actor"},
    {"resource::approval", "Approval", "Resource.Approval"},
    {"resource::constraint", "Constraint", "Resource.Constraint"},
    {"resource::cost", "Cost", "Resource.Cost"},
    {"resource::datetime", "DateTime", "Resource.DateTime"},
    {"resource::externalreference", "External Reference", "Resource.External Reference"},
    {"resource::geometricconstraint", "Geometric Constraint", "Resource.Geometric Constraint"},
    {"resource::geometricmodel", "Geometric Model", "Resource.Geometric Model"},
    {"resource::geometry", "Geometry", "Resource.Geometry"},
    {"resource::material", "Material", "Resource.Material"},
    {"resource::measure", "Measure", "Resource.Measure"},
    {"resource::presentationappearance", "Presentation Appearance",
     "Resource.Presentation Appearance"},
    {"resource::presentationdefinition", "Presentation Definition",
     "Resource.Presentation Definition"},
    {"resource::presentationorganization", "Presentation Organization",
     "Resource.Presentation Organization"},
    {"resource::profile", "Profile", "Resource.Profile"},
    {"resource::property", "Property", "Resource.Property"},
    {"resource::quantity", "Quantity", "Resource.Quantity"},
    {"resource::representation", "Representation", "Resource.Representation"},
    {"resource::structuralload", "Structural Load", "Resource.Structural Load"},
    {"resource::topology", "Topology", "Resource.Topology"},
    {"resource::utility", "Utility", "Resource.Utility"},
};

}  // namespace

std::string Group::folder() const {
  std::string result;
  bool startsWord = true;
  for (const char c : path) {
    if (c == ' ') {
      startsWord = true;
    } else if (c == '.') {
      result += '/';
      startsWord = true;
    } else {
      result += startsWord ? static_cast<char>(std::toupper(static_cast<unsigned char>(c))) : c;
      startsWord = false;
    }
  }
  return result;
}

std::string Group::sourceFile() const {
  std::string result(name);
  return result.replace(result.find("::"), 2, "-") + ".cpp";
}

const Group& groupNamed(std::string_view name) {
  const auto found = std::find_if(std::begin(groups), std::end(groups),
                                  [name](const Group& g) { return g.name == name; });
  if (found == std::end(groups)) throw std::runtime_error("unknown group " + std::string(name));
  return *found;
}

}  // namespace qor::schema
