#include "DptCache.h"

#include "DptText.h"
#include "InputError.h"

namespace Knxconv {

KNXDPT DptCache::Parse(const std::string& text) {
  auto found = entries_.find(text);
  if (found == entries_.end()) {
    Entry entry;
    try {
      entry.dpt = ParseDpt(text);
    } catch (const InputError& error) {
      entry.error = error.what();
    }
    if (entries_.size() >= Capacity) {
      entries_.clear();
    }
    found = entries_.emplace(text, std::move(entry)).first;
  }
  if (!found->second.error.empty()) {
    throw InputError(found->second.error);
  }
  return found->second.dpt;
}

}  // namespace Knxconv
