#pragma once

#include <memory>

#include "Fc/Resource/Representation/FcGeometricRepresentationContextAttributes.h"

namespace qor::fc {
class Data;
}

namespace qor::fc::resource::representation {

/// IfcGeometricRepresentationContext, Resource.Representation: knows the model that it was added
/// to, though it is no root.
class QOR_API FcGeometricRepresentationContext : public FcGeometricRepresentationContextAttributes {
 public:
  /// The model that the context was last added to; null when it was added to none, or that is gone.
  std::shared_ptr<Data> data() const { return m_data.lock(); }

  /// What the host's filter says; yes without one.
  bool generate(FcGenerateParams& params) const override;

 private:
  friend class qor::fc::Data;
  std::weak_ptr<Data> m_data;
};

}  // namespace qor::fc::resource::representation
