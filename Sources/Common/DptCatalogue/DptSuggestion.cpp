#include <algorithm>
#include <cstdio>
#include <string>
#include <string_view>
#include <vector>

#include "CatalogueText.h"
#include "DptCatalogue.h"

namespace Nelmo {

namespace {

struct Candidate {
  std::size_t distance;
  std::string text;
};

// Levenshtein distance, ignoring case.
std::size_t EditDistance(std::string_view left, std::string_view right) {
  std::vector<std::size_t> previous(right.size() + 1);
  std::vector<std::size_t> current(right.size() + 1);
  for (std::size_t j = 0; j <= right.size(); ++j) {
    previous[j] = j;
  }
  for (std::size_t i = 1; i <= left.size(); ++i) {
    current[0] = i;
    for (std::size_t j = 1; j <= right.size(); ++j) {
      const std::size_t substitution =
          previous[j - 1] + (CatalogueText::Lower(left[i - 1]) == CatalogueText::Lower(right[j - 1]) ? 0 : 1);
      current[j] = std::min({previous[j] + 1, current[j - 1] + 1, substitution});
    }
    std::swap(previous, current);
  }
  return previous[right.size()];
}

// The distance is at least the difference in length, so a text far longer
// or shorter than a candidate needs no table of distances: a long line of
// garbage costs a comparison of sizes per candidate, not a quadratic walk.
std::size_t BoundedDistance(std::string_view left, std::string_view right, std::size_t limit) {
  const std::size_t difference = left.size() > right.size() ? left.size() - right.size() : right.size() - left.size();
  return difference > limit ? difference : EditDistance(left, right);
}

// The number written the way the user started to write it: "DPST-9-1" after
// an ETS prefix, "9.001" otherwise.
std::string NumberText(const DptSubtype& row, std::string_view dashedPrefix) {
  char text[32];
  if (dashedPrefix.empty()) {
    std::snprintf(text, sizeof text, "%u.%03u", unsigned{row.mainNumber}, unsigned{row.subNumber});
  } else {
    std::snprintf(text, sizeof text, "%.*s%u-%u", static_cast<int>(dashedPrefix.size()), dashedPrefix.data(),
                  unsigned{row.mainNumber}, unsigned{row.subNumber});
  }
  return text;
}

std::string_view DashedPrefix(std::string_view text) {
  if (CatalogueText::StartsWithIgnoringCase(text, "DPST-")) {
    return "DPST-";
  }
  if (CatalogueText::StartsWithIgnoringCase(text, "DPT-")) {
    return "DPT-";
  }
  return {};
}

// The text without a leading "DPT" or "DPT ", to compare with "9.001".
std::string_view DottedPart(std::string_view text) {
  if (CatalogueText::StartsWithIgnoringCase(text, "DPT ")) {
    return text.substr(4);
  }
  if (CatalogueText::StartsWithIgnoringCase(text, "DPT") && text.size() > 3 && text[3] >= '0' && text[3] <= '9') {
    return text.substr(3);
  }
  return text;
}

}  // namespace

std::vector<std::string> DptCatalogue::Suggest(std::string_view text, std::size_t count) {
  text = CatalogueText::Trim(text);
  const std::string_view dashedPrefix = DashedPrefix(text);
  const std::string_view numberPart = dashedPrefix.empty() ? DottedPart(text) : text;
  // Farther than a third of the text is not a typo of it any more.
  const std::size_t limit = std::max<std::size_t>(2, text.size() / 3);
  std::vector<Candidate> candidates;
  for (const DptSubtype& row : All()) {
    const std::size_t nameDistance = BoundedDistance(text, row.name, limit);
    if (nameDistance <= limit) {
      candidates.push_back(Candidate{nameDistance, row.name});
    }
    std::string number = NumberText(row, dashedPrefix);
    const std::size_t numberDistance = BoundedDistance(numberPart, number, limit);
    if (numberDistance <= limit) {
      candidates.push_back(Candidate{numberDistance, std::move(number)});
    }
  }
  std::stable_sort(candidates.begin(), candidates.end(),
                   [](const Candidate& left, const Candidate& right) { return left.distance < right.distance; });
  std::vector<std::string> suggestions;
  for (std::size_t i = 0; i < candidates.size() && i < count; ++i) {
    suggestions.push_back(std::move(candidates[i].text));
  }
  return suggestions;
}

}  // namespace Nelmo
