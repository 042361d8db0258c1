#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Knxconv {

// The number of single-character insertions, deletions, substitutions and
// swaps of neighbours that turn one text into the other.
std::size_t EditDistance(std::string_view from, std::string_view to);

// The candidate closest to what was typed, when it is close enough to be a
// typing slip: at most 2 edits, and at most half of what was typed.
std::optional<std::string> NearestName(std::string_view typed, const std::vector<std::string>& candidates);

}  // namespace Knxconv
