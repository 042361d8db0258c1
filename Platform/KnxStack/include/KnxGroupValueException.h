#pragma once

#include <exception>
#include <string>

namespace KnxStack {

// Thrown by GroupValue accessors on a size or field that does not fit.
class GroupValueException : public std::exception {
 public:
  explicit GroupValueException(std::string message);
  const char* what() const noexcept override;

 private:
  std::string m_message;
};

}  // namespace KnxStack
