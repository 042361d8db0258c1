#include "KnxConverter.h"

namespace Nelmo {

KnxConverter::~KnxConverter() = default;

}  // namespace Nelmo
