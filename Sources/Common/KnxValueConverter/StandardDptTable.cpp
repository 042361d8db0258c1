#include "KnxValueConverter.h"

namespace Nelmo {

bool KnxValueConverter::FillDptValueMap() {
  m_dptValueMap.Clear();
  return true;
}

}  // namespace Nelmo
