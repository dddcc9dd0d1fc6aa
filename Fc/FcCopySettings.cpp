#include "Fc/FcCopySettings.h"

#include <vector>

#include "Fc/Data.h"
#include "Fc/Resource/GeometricModel/FcTriangulatedFaceSet.h"
#include "Fc/Resource/Geometry/FcRepresentationItem.h"
#include "Fc/Resource/PresentationAppearance/FcIndexedTextureMap.h"
#include "Fc/Resource/PresentationAppearance/FcStyledItem.h"
#include "Fc/Resource/Representation/FcGeometricRepresentationContext.h"

namespace qor::fc {

using resource::geometricmodel::FcTriangulatedFaceSet;
using resource::geometry::FcRepresentationItem;
using resource::representation::FcGeometricRepresentationContext;

FcCopySettings::~FcCopySettings() noexcept(false) {
  if (target) m_wayOut.leave([this] { copyStylesAndTextures(); });
}

void FcCopySettings::copyStylesAndTextures() {
  std::vector<const FcBase*> sources;
  sources.reserve(copiedEntities.size());
  for (const auto& [source, copy] : copiedEntities)
    if (fcCast<FcRepresentationItem>(source) && fcCast<FcRepresentationItem>(copy.get()))
      sources.push_back(source);
  for (const FcBase* source : sources) {
    if (const auto style = static_cast<const FcRepresentationItem*>(source)->StyledByItem().lock())
      style->deepCopy(*this);
    if (const auto* faceSet = fcCast<FcTriangulatedFaceSet>(source))
      for (const auto& texture : faceSet->HasTextures().lock()) texture->deepCopy(*this);
  }
}

void FcCopySettings::initiateCopiedEntities(Data& targetData, const Data& source) {
  for (const auto& known : targetData.entities<FcGeometricRepresentationContext>()) {
    const auto equal = source.findFirst<FcGeometricRepresentationContext>(
        [&known](const FcGeometricRepresentationContext& context) {
          return context.isEqualTo(*known);
        });
    if (equal) copiedEntities[equal.get()] = known;
  }
}

}  // namespace qor::fc
