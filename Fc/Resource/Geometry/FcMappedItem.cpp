#include "Fc/Resource/Geometry/FcMappedItem.h"

#include <cstdint>
#include <string>

#include "Fc/Drawing/FcDrawParams.h"
#include "Fc/Model/Nesting.h"
#include "Fc/Resource/Geometry/FcCartesianTransformationOperator.h"
#include "Fc/Resource/Geometry/FcRepresentationMap.h"

namespace qor::fc::resource::geometry {

using generate::draw::BlockInterface;
using generate::draw::TransformationGuard;
using math::MatrixMultiplyOrder;

namespace {

class OpenBlock {
 public:
  OpenBlock(BlockInterface& target, const std::string& name)
      : m_target(target), m_isKnown(target.startBlock(name) != 0) {}
  OpenBlock(const OpenBlock&) = delete;
  OpenBlock& operator=(const OpenBlock&) = delete;
  ~OpenBlock() noexcept(false) {
    m_wayOut.leave([this] { m_target.stopBlock(); });
  }

  bool isKnown() const { return m_isKnown; }

 private:
  BlockInterface& m_target;
  bool m_isKnown;
  WayOut m_wayOut;
};

}  // namespace

void FcMappedItem::draw(const FcDrawParams& params) const {
  if (!MappingSource()) return;
  const Nesting nesting(Nesting::Kind::map, *MappingSource());
  if (!nesting) return;
  if (!MappingTarget()) return drawMap(params);
  FcDrawInterface& target = params;
  const TransformationGuard guard(target);
  target.vTransformationMultiply(MappingTarget()->getTransformation(), MatrixMultiplyOrder::left);
  drawMap(params);
}

void FcMappedItem::drawMap(const FcDrawParams& params) const {
  BlockInterface* const blocks = params->blockInterface();
  if (!blocks) return MappingSource()->draw(params);
  const OpenBlock block(*blocks,
                        std::to_string(reinterpret_cast<std::uintptr_t>(MappingSource().get())));
  if (!block.isKnown()) MappingSource()->draw(params);
}

void FcMappedItem::transform(const math::Matrix& matrix) {
  if (MappingTarget()) MappingTarget()->transform(matrix);
}

std::optional<math::Extent> FcMappedItem::boundingBox(const FcParams& params) const {
  if (!MappingSource() || !MappingTarget()) return {};
  const Nesting nesting(Nesting::Kind::map, *MappingSource());
  if (!nesting) return {};
  const auto box = MappingSource()->boundingBox(params);
  if (!box) return {};
  return box->transformExtent(MappingTarget()->getTransformation());
}

}  // namespace qor::fc::resource::geometry
