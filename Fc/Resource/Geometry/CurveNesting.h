#pragma once

#include "Qor/Platform/Export.h"

namespace qor::fc::resource::geometry {

class FcCurve;

/// Stands in each operation of a curve that asks the curves it is made of. Files can hold curves
/// that are part of themselves, which must end and not exhaust the stack.
///
/// Knows the curves that are under way on this thread. One that comes a second time, or more than
/// 100 deep, is reported by an assert.
class QOR_API CurveNesting {
 public:
  explicit CurveNesting(const FcCurve& curve);
  CurveNesting(const CurveNesting&) = delete;
  CurveNesting& operator=(const CurveNesting&) = delete;
  ~CurveNesting();

  /// False: the operation must give up.
  explicit operator bool() const { return m_allowed; }

 private:
  bool m_allowed;
};

}  // namespace qor::fc::resource::geometry
