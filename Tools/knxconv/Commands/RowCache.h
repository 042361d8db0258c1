#pragma once

#include <cstdint>
#include <unordered_map>

#include "KnxValueConverterApi.h"

namespace Knxconv {

// The library's row per DPT, looked up once (QuietEntry): a trace shows the
// row's sub-type and number converter for each telegram, and its telegrams
// name few DPTs. One cache serves one converter, whose table does not change
// while it is used.
class RowCache {
 public:
  const Nelmo::DptValueEntry& Row(const Nelmo::KnxValueConverter& converter, const KNXDPT& dpt);

 private:
  // Main and sub number: the bit size plays no part in the lookup.
  std::unordered_map<std::uint32_t, const Nelmo::DptValueEntry*> m_rows;
};

}  // namespace Knxconv
