#pragma once

#include <memory>
#include <mutex>
#include <span>
#include <string_view>

#include "Qor/Platform/Export.h"
#include "Qor/Unit/Dimensions.h"
#include "Qor/Unit/QppSettings.h"
#include "Qor/Unit/QuantityId.h"
#include "Qor/Unit/Registration.h"

namespace qor::unit {

class QuantityPresentationBase;

/// What a number measures, an area say: there is one object for each quantity, which lives as long
/// as the program and holds the settings that its numbers are shown with.
///
/// All operations may be called from any thread.
class QOR_API QuantityBase {
 public:
  QuantityBase(const QuantityBase&) = delete;
  QuantityBase& operator=(const QuantityBase&) = delete;
  virtual ~QuantityBase() = default;

  /// The one object of the quantity class `Q`, registered on first use.
  template <class Q>
  static QuantityBase& registered() {
    static QuantityBase& quantity = Registration::registerQuantity(std::make_unique<Q>());
    return quantity;
  }

  QuantityId id() const { return m_id; }
  const Dimensions& dimensions() const { return m_dimensions; }
  /// The units that its numbers can be shown in, that of the SI first; at least one.
  std::span<const DisplayUnit> units() const { return m_units; }
  /// The unit of `units()` with this symbol; null for none.
  const DisplayUnit* findUnit(std::string_view symbol) const;

  /// The settings that new presentations get.
  QppSettings qppDefault() const;
  /// Changes them for the whole process: presentations that there are keep theirs. The unit need
  /// not be one of `units()`. False, and no change, for a unit that isn't valid.
  bool setQppDefault(QppSettings settings);
  /// Back to those that the library began with.
  void resetQppDefault();

  /// A presentation of an SI number with the default settings.
  virtual std::unique_ptr<QuantityPresentationBase> createPresentation(double number) const = 0;

 protected:
  /// A quantity that the library doesn't know has one unit without a symbol, and three decimals.
  QuantityBase(QuantityId id, const Dimensions& dimensions);

 private:
  const QuantityId m_id;
  const Dimensions m_dimensions;
  const std::span<const DisplayUnit> m_units;
  mutable std::mutex m_mutex;
  QppSettings m_default;
};

}  // namespace qor::unit
