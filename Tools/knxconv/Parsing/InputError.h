#pragma once

#include <stdexcept>
#include <string>

namespace Knxconv {

// Input that the tool cannot read: a malformed DPT, payload or value, an
// unknown type name. Its text is meant for the user as it is.
class InputError : public std::runtime_error {
 public:
  explicit InputError(const std::string& message) : std::runtime_error(message) {}
};

}  // namespace Knxconv
