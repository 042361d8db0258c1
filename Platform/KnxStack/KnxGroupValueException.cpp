#include "KnxGroupValueException.h"

#include <utility>

namespace KnxStack {

GroupValueException::GroupValueException(std::string message) : m_message(std::move(message)) {}

const char* GroupValueException::what() const noexcept {
  return m_message.c_str();
}

}  // namespace KnxStack
