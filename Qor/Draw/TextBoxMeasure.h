#pragma once

namespace qor::generate::draw {

/// How much room a line of text takes, in metres.
struct TextBoxMeasure {
  double width = 0;
  double height = 0;

  friend constexpr bool operator==(const TextBoxMeasure&, const TextBoxMeasure&) = default;
};

}  // namespace qor::generate::draw
