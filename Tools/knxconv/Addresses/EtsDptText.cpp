#include "EtsDptText.h"

#include <string>

#include "DptCatalogue.h"
#include "InputError.h"
#include "NumberText.h"

namespace Knxconv {

std::optional<KNXDPT> ParseEtsDpt(std::string_view text) {
  std::string_view first = Trim(text);
  first = first.substr(0, first.find_first_of(", \t"));
  if (first.empty()) {
    return std::nullopt;
  }
  const std::optional<Nelmo::DptId> id = Nelmo::DptCatalogue::Parse(first);
  if (!id) {
    throw InputError("not a datapoint type: '" + std::string(first) + "'");
  }
  KNXDPT dpt;
  dpt.mainNumber = id->mainNumber;
  dpt.subNumber = id->subGiven ? id->subNumber : 0;
  return dpt;
}

}  // namespace Knxconv
