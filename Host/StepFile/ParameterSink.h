#pragma once

#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <utility>

#include "Fc/Reflection/ValueSink.h"

namespace qor::host::step {

/// Spells values as the parameters of a STEP file: `ValueSink` onto the end of a text.
class ParameterSink final : public fc::ValueSink {
 public:
  /// Gives the number of an entity.
  using NumberOf = std::function<std::uint64_t(const fc::FcBase&)>;

  /// `out` must outlive this.
  ParameterSink(std::string& out, NumberOf numberOf)
      : m_out(out), m_numberOf(std::move(numberOf)) {}

  /// What comes next stands alone or is the first of a list.
  void startOver() { m_first = true; }

  void null() override;
  /// A value that the schema derives: `*`.
  void derived();
  void integer(std::int64_t value) override;
  /// `$`, and one more `notFinite()`, for infinities and for what is no number: a STEP file can't
  /// hold them.
  void real(double value) override;
  void text(std::string_view value) override;
  void enumerator(std::string_view name) override;
  void binary(std::span<const std::uint8_t> bytes) override;
  void entity(const fc::FcBase& entity) override;
  void openList() override;
  void closeList() override;
  void openTyped(std::string_view upperName) override;
  void closeTyped() override;

  std::uint64_t notFinite() const { return m_notFinite; }

 private:
  /// Every value but the first of a list has a comma in front.
  void separate() {
    if (!m_first) m_out.push_back(',');
    m_first = false;
  }

  std::string& m_out;
  NumberOf m_numberOf;
  bool m_first = true;
  std::uint64_t m_notFinite = 0;
};

}  // namespace qor::host::step
