#pragma once

#include <cstdint>

namespace qor::generate::draw {

/// How a surface throws light back.
enum class ReflectanceMethod : std::uint8_t {
  Blinn = 0,
  Flat = 1,
  Glass = 2,
  Matt = 3,
  Metal = 4,
  Mirror = 5,
  Phong = 6,
  Plastic = 7,
  Physical = 8,
  Strauss = 9,
  NotDefined = 10
};

}  // namespace qor::generate::draw
