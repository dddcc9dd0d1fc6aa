#pragma once

namespace qor::generate::draw {

/// Red, green and blue from 0 to 1, and how much there is of the colour: alpha 0, as in the
/// default, says that there is none.
struct Color {
  float red = 0;
  float green = 0;
  float blue = 0;
  float alpha = 0;

  constexpr Color() = default;
  constexpr Color(float red_, float green_, float blue_, float alpha_ = 1)
      : red(red_), green(green_), blue(blue_), alpha(alpha_) {}

  friend constexpr bool operator==(const Color&, const Color&) = default;
};

/// The order by red, green, blue; alpha has no part in it. Not a number stands behind all numbers,
/// so that any colour may be the key of a map.
struct ColorLess {
  constexpr bool operator()(const Color& a, const Color& b) const {
    if (less(a.red, b.red) || less(b.red, a.red)) return less(a.red, b.red);
    if (less(a.green, b.green) || less(b.green, a.green)) return less(a.green, b.green);
    return less(a.blue, b.blue);
  }

 private:
  static constexpr bool less(float a, float b) { return a < b || (b != b && a == a); }
};

}  // namespace qor::generate::draw
