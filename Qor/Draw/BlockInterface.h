#pragma once

#include <cstdint>
#include <string>

#include "Qor/Platform/Export.h"

namespace qor::generate::draw {

/// The face of a target that keeps what is drawn between `startBlock` and `stopBlock` under a name
/// and can show it again in another frame.
class QOR_API BlockInterface {
 public:
  virtual ~BlockInterface() = default;

  /// 0: the block is new, and what comes until `stopBlock` fills it, in the target's present frame.
  /// Any other answer: the target has it and shows it in its present frame; nothing will come.
  /// Blocks may lie within blocks.
  virtual std::uint32_t startBlock(const std::string& name) = 0;
  /// Once for each `startBlock`, whatever that answered.
  virtual void stopBlock() = 0;
};

}  // namespace qor::generate::draw
