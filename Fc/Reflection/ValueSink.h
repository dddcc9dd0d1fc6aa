#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "Qor/Platform/Export.h"

namespace qor::fc {

class FcBase;

/// Takes the values of attributes in their order: the mirror of `ValueSource`, implemented by a
/// host's writer.
///
/// Separators between the elements of a list and between attributes are the sink's business.
class QOR_API ValueSink {
 public:
  virtual ~ValueSink() = default;

  virtual void null() = 0;
  virtual void integer(std::int64_t value) = 0;
  virtual void real(double value) = 0;
  /// UTF-8.
  virtual void text(std::string_view value) = 0;
  /// An enumerator's name, or T, F, U for a logical.
  virtual void enumerator(std::string_view name) = 0;
  virtual void binary(std::span<const std::uint8_t> bytes) = 0;
  virtual void entity(const FcBase& entity) = 0;
  virtual void openList() = 0;
  virtual void closeList() = 0;
  /// `upperName` is the type's name in upper case, "IFCLABEL".
  virtual void openTyped(std::string_view upperName) = 0;
  virtual void closeTyped() = 0;
};

}  // namespace qor::fc
