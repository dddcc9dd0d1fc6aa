#pragma once

#include <exception>
#include <memory>
#include <string>

#include "Qor/Platform/Export.h"

namespace qor {

/// The library's own exception: a message for the programmer who asked for something that isn't
/// there.
class QOR_API exception : public std::exception {
 public:
  explicit exception(std::string message);
  const char* what() const noexcept override;

 private:
  std::shared_ptr<const std::string> m_message;  // shared: copying an exception must not throw
};

}  // namespace qor
