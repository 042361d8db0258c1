#pragma once

#include <string>

#include "KnxValueConverterApi.h"

namespace Knxconv {

// The value as text at the precision that the bus carries. A number's
// scaling leaves round-off behind (0C 34 as DPT 9.001 reads as
// 21.519999999999982), so it is written with the fewest significant digits
// (1 to 17) that the row's converter, which the library uses, encodes back
// to the received bytes within the row's range: 21.52. Other values, numbers
// of rows without a scale, and numbers that no such text gives back come as
// the value's own text. dpt is the row's, rowConverter its converter.
std::string DisplayText(Nelmo::KnxConverter* rowConverter, const KNXDPT& dpt, const ULOVALUE& value,
                        const KnxStack::GroupValue& received);

// The range within which a row's converter scales numbers to and from bus
// integers or floats; both null for a converter that scales none. Found by
// the converter's class, so a caller that shows many values of a row keeps
// it.
struct NumberScale {
  const Nelmo::FloatRange* floats = nullptr;
  const Nelmo::FloatIntegerRange* scaled = nullptr;
};
NumberScale ScaleOf(const Nelmo::KnxConverter* rowConverter);
// DisplayText with rowConverter's scale at hand.
std::string DisplayText(Nelmo::KnxConverter* rowConverter, const NumberScale& scale, const KNXDPT& dpt,
                        const ULOVALUE& value, const KnxStack::GroupValue& received);

// Scientific notation as printf's "%e" writes it ("-3.2e+00") in plain
// decimal ("-3.2") where that is at most 21 digits before and 6 zeros after
// the point; as it is otherwise.
std::string PlainDecimal(const std::string& scientific);

}  // namespace Knxconv
