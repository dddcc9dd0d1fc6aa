#include "Qor/Assert/Exception.h"

#include <utility>

namespace qor {

exception::exception(std::string message)
    : m_message(std::make_shared<const std::string>(std::move(message))) {}

const char* exception::what() const noexcept { return m_message->c_str(); }

}  // namespace qor
