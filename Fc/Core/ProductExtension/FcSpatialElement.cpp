#include "Fc/Core/ProductExtension/FcSpatialElement.h"

#include "Fc/Core/Kernel/FcGroup.h"
#include "Fc/Core/ProductExtension/FcRelContainedInSpatialStructure.h"
#include "Fc/Core/ProductExtension/FcRelReferencedInSpatialStructure.h"
#include "Fc/Drawing/FcGenerateParams.h"

namespace qor::fc::core::productextension {

using kernel::FcProduct;

void FcSpatialElement::doGenerate(FcGenerateParams& params) const {
  std::vector<std::shared_ptr<const FcRoot>> products;
  for (const auto& relation : ReferencesElements().lock())
    for (const FcSpatialReferenceSelect& related : relation->RelatedElements())
      if (related.type() == FcSpatialReferenceSelect::Types::Product)
        products.push_back(related.Product());
  if (params.generateContainedElements)
    for (const auto& relation : ContainsElements().lock())
      products.insert(products.end(), relation->RelatedElements().begin(),
                      relation->RelatedElements().end());
  if (products.empty()) return FcProduct::doGenerate(params);
  params.afterwards(std::move(products), [this, &params] { FcProduct::doGenerate(params); });
}

}  // namespace qor::fc::core::productextension
