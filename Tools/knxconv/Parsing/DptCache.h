#pragma once

#include <string>
#include <unordered_map>

#include "UloPlatform.h"

namespace Knxconv {

// ParseDpt remembered per text: a trace names few distinct DPTs, and reading
// one by name searches the whole catalogue. Holds at most Capacity texts, so
// a trace of ever new spellings keeps its memory constant.
class DptCache {
 public:
  // As ParseDpt, InputError included.
  KNXDPT Parse(const std::string& text);

 private:
  static constexpr std::size_t Capacity = 256;
  struct Entry {
    KNXDPT dpt;
    std::string error;  // empty when the text is a DPT
  };
  std::unordered_map<std::string, Entry> entries_;
};

}  // namespace Knxconv
