#pragma once

#include <stdexcept>
#include <string>

namespace Knxconv {

// A command line that does not say what to do: an unknown option, a missing
// or extra argument. Reported with a pointer to the help, unless the message
// already says where to look.
class UsageError : public std::runtime_error {
 public:
  explicit UsageError(const std::string& message, bool pointsToHelp = true)
      : std::runtime_error(message), m_pointsToHelp(pointsToHelp) {}
  bool PointsToHelp() const { return m_pointsToHelp; }

 private:
  bool m_pointsToHelp;
};

}  // namespace Knxconv
