#pragma once

#include "Qor/Assert/WayOut.h"
#include "Qor/Math/Matrix.h"
#include "Qor/Math/MatrixMultiplyOrder.h"
#include "Qor/Platform/Export.h"

namespace qor::generate::draw {

/// The frame that a target draws in: points that it is given are multiplied by it.
class QOR_API TransformationInterface {
 public:
  virtual ~TransformationInterface() = default;

  virtual void vTransformationSet(const math::Matrix& matrix) = 0;
  virtual math::Matrix transformationGet() const = 0;
  /// Makes the frame `matrix * frame` for `left`, so that `matrix` acts first, and `frame * matrix`
  /// for `right`.
  virtual void vTransformationMultiply(const math::Matrix& matrix,
                                       math::MatrixMultiplyOrder order) = 0;
  /// The two base forms multiply by the matrix that moves by that much.
  virtual void vTransformationTranslate(const math::Vector3d& by, math::MatrixMultiplyOrder order);
  virtual void vTransformationTranslate(const math::Point3d& to, math::MatrixMultiplyOrder order);

 protected:
  TransformationInterface() = default;
  TransformationInterface(const TransformationInterface&) = default;
  TransformationInterface& operator=(const TransformationInterface&) = default;
};

/// Gives a target back the frame that it had when this was made, on every way out of a scope.
///
/// What the target throws then reaches the host, unless another exception is on its way.
class TransformationGuard {
 public:
  explicit TransformationGuard(TransformationInterface& target)
      : m_target(target), m_saved(target.transformationGet()) {}
  TransformationGuard(const TransformationGuard&) = delete;
  TransformationGuard& operator=(const TransformationGuard&) = delete;
  ~TransformationGuard() noexcept(false) {
    m_wayOut.leave([this] { m_target.vTransformationSet(m_saved); });
  }

 private:
  TransformationInterface& m_target;
  math::Matrix m_saved;
  WayOut m_wayOut;
};

}  // namespace qor::generate::draw
