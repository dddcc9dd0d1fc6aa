#pragma once

#include <string>
#include <string_view>

#include "Qor/Platform/Export.h"
#include "Qor/Unit/QppSettings.h"

namespace qor::unit {

class QuantityBase;

/// A number with what it measures and how it is to be shown: what a property grid needs for one
/// cell. The number is that of the SI and stays it, whatever unit is shown.
class QOR_API QuantityPresentationBase {
 public:
  virtual ~QuantityPresentationBase() = default;

  const QuantityBase& quantity() const { return m_quantity; }
  double number() const { return m_number; }
  const QppSettings& settings() const { return m_settings; }
  /// False, and no change, for a unit that isn't valid.
  bool setSettings(QppSettings settings);
  /// Shows the number in that one of the quantity's units, with the same decimals. False, and no
  /// change, when the quantity has no unit of this symbol.
  bool showIn(std::string_view symbol);

  /// Stands in for the number where it isn't empty: "varies" for a selection of several objects.
  const std::string& text() const { return m_text; }
  void setText(std::string text) { m_text = std::move(text); }

  /// "2.500 m²": the text or, without one, the number as `QppSettings::writeToString` gives it.
  std::string toString(bool withUnit = true) const;

 protected:
  /// `quantity` must be a registered one.
  QuantityPresentationBase(QppSettings settings, const QuantityBase& quantity, double number,
                           std::string text);

 private:
  QppSettings m_settings;
  const QuantityBase& m_quantity;
  double m_number;
  std::string m_text;
};

}  // namespace qor::unit
