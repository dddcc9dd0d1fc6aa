#pragma once

#include "Fc/Resource/Profile/FcDerivedProfileDefAttributes.h"

namespace qor::fc::resource::profile {

/// IfcDerivedProfileDef, Resource.Profile: another profile, moved, turned, scaled or mirrored.
class QOR_API FcDerivedProfileDef : public FcDerivedProfileDefAttributes {
 public:
  /// The parent's contours times the operator, in the sense that they get by it: a mirror turns it.
  /// Without an operator those of the parent, without a parent none. A profile that derives from
  /// itself is reported and has none.
  std::vector<generate::draw::Profile2D> closedProfile(const FcParams& params) const override;

 protected:
  /// What `Operator` does to the parent; empty without one.
  virtual std::optional<math::Matrix2d> operatorMatrix() const;
};

}  // namespace qor::fc::resource::profile
