#pragma once

#include <optional>
#include <string>

#include "Arguments.h"
#include "KnxValueConverterApi.h"
#include "Output.h"
#include "OutputContext.h"
#include "RowCache.h"

namespace Knxconv {

// The row the library would use, looked up without the lookup's own log.
const Nelmo::DptValueEntry& QuietEntry(const Nelmo::KnxValueConverter& converter, const KNXDPT& dpt);

// The DPT as text with the bit size from --bits (0: none given).
KNXDPT DptWithBits(const std::string& text, int bits);

// Whether result.text is made: JSON output does not show it.
enum class ValueTextForm { Made, Skipped };

// Decodes hex payload as result.dpt into result; bits 0 takes the DPT's
// size. A payload that cannot hold the DPT's value is not decoded: its
// reason is result.error. Throws InputError for a payload that is not hex.
void Decode(const Nelmo::KnxValueConverter& converter, const std::string& payload, int bits, TraceResult& result,
            ValueTextForm text = ValueTextForm::Made);

// As Decode with the DPT's size, but a payload that is not hex is refused in
// result.error, as one of the wrong size is, instead of thrown: a trace may
// hold many, and a throw costs more than a conversion.
// rows finds the rows of converter.
void DecodeOrRefuse(const Nelmo::KnxValueConverter& converter, const std::string& payload, TraceResult& result,
                    ValueTextForm text, RowCache& rows);

// The group value of hex payload as Decode reads it. Throws InputError.
KnxStack::GroupValue PayloadGroupValue(const KNXDPT& dpt, const std::string& payload, int bits);
// What Decode makes of a group value, for result.dpt.
void ConvertGroupValue(const Nelmo::KnxValueConverter& converter, const KnxStack::GroupValue& groupValue,
                       TraceResult& result, ValueTextForm text = ValueTextForm::Made);

// VALUE (and --type, --summer-time) as the value to send for dpt: read as
// the type that --type names, else as the type of the DPT's row. A DPT
// without a row gets the empty value, which the library then refuses with
// its own message. Throws UsageError and InputError.
ULOVALUE ValueToSend(const Nelmo::KnxValueConverter& converter, const KNXDPT& dpt, const Arguments& arguments);

// Why the value read for dpt is not sent, or nullopt: the converters send
// impossible dates and times as they are given.
std::optional<std::string> SendError(const Nelmo::KnxValueConverter& converter, const KNXDPT& dpt,
                                     const ULOVALUE& value);

// What encode makes of VALUE for dpt (completed as the library completes
// it): the group value, or the exit status of its refusal, already told
// through context.
struct Encoded {
  KnxStack::GroupValue groupValue;
  int status = ExitSuccess;
};
Encoded EncodeValue(const Nelmo::KnxValueConverter& converter, KNXDPT& dpt, const Arguments& arguments,
                    OutputContext& context);

}  // namespace Knxconv
