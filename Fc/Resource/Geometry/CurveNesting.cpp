#include "Fc/Resource/Geometry/CurveNesting.h"

#include <algorithm>
#include <vector>

#include "Fc/Model/NotImplemented.h"
#include "Fc/Model/Report.h"
#include "Fc/Resource/Geometry/FcCurve.h"

namespace qor::fc::resource::geometry {

namespace {

std::vector<const FcCurve*>& underWay() {
  static thread_local std::vector<const FcCurve*> curves;
  return curves;
}

constexpr std::size_t deepest = 100;

}  // namespace

CurveNesting::CurveNesting(const FcCurve& curve) {
  auto& curves = underWay();
  const bool again = std::find(curves.begin(), curves.end(), &curve) != curves.end();
  m_allowed = !again && curves.size() < deepest;
  if (m_allowed)
    curves.push_back(&curve);
  else
    report((again ? "Circular dependency in " : "Too many curves within each other, at ") +
           runTimeTypeName(curve));
}

CurveNesting::~CurveNesting() {
  if (m_allowed) underWay().pop_back();
}

}  // namespace qor::fc::resource::geometry
