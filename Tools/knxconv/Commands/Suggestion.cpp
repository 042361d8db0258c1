#include "Suggestion.h"

#include <algorithm>

namespace Knxconv {

namespace {

constexpr std::size_t MaximumSlip = 2;

}  // namespace

std::size_t EditDistance(std::string_view from, std::string_view to) {
  // Rows of the classic table: before the previous, previous, current.
  std::vector<std::size_t> older(to.size() + 1);
  std::vector<std::size_t> previous(to.size() + 1);
  std::vector<std::size_t> current(to.size() + 1);
  for (std::size_t column = 0; column <= to.size(); ++column) {
    previous[column] = column;
  }
  for (std::size_t row = 1; row <= from.size(); ++row) {
    current[0] = row;
    for (std::size_t column = 1; column <= to.size(); ++column) {
      const std::size_t cost = from[row - 1] == to[column - 1] ? 0 : 1;
      current[column] = std::min({previous[column] + 1, current[column - 1] + 1, previous[column - 1] + cost});
      if (row > 1 && column > 1 && from[row - 1] == to[column - 2] && from[row - 2] == to[column - 1]) {
        current[column] = std::min(current[column], older[column - 2] + 1);
      }
    }
    std::swap(older, previous);
    std::swap(previous, current);
  }
  return previous[to.size()];
}

std::optional<std::string> NearestName(std::string_view typed, const std::vector<std::string>& candidates) {
  std::optional<std::string> nearest;
  std::size_t best = MaximumSlip + 1;
  for (const std::string& candidate : candidates) {
    const std::size_t distance = EditDistance(typed, candidate);
    if (distance < best && 2 * distance <= typed.size()) {
      best = distance;
      nearest = candidate;
    }
  }
  return nearest;
}

}  // namespace Knxconv
