#include "Commands.h"

#include <fstream>
#include <optional>
#include <vector>

#include "DptText.h"
#include "HexText.h"
#include "InputError.h"
#include "KnxValueConverterApi.h"
#include "LogForwarder.h"
#include "Output.h"
#include "TraceReader.h"
#include "ValueText.h"

namespace Knxconv {

namespace {

// Values of up to 6 bits travel inside the telegram's control field.
constexpr std::int32_t ControlFieldBits = 6;

// The row the library would use, looked up without the lookup's own log.
const Nelmo::DptValueEntry& QuietEntry(const Nelmo::KnxValueConverter& converter, const KNXDPT& dpt) {
  const QuietLog quiet;
  return converter.GetEntry(dpt);
}

// VALUE is read as the type that --type names, else as the type of the
// DPT's row. A DPT without a row gets the empty value, which the library
// then refuses with its own message.
ULOVALUE ValueToSend(const Nelmo::KnxValueConverter& converter, const KNXDPT& dpt, const Options& options) {
  UloValueType type = IVT_ANY;
  if (!options.type.empty()) {
    type = ParseValueType(options.type);
  } else if (dpt.mainNumber == 0) {
    throw InputError("without a DPT, --type must say what VALUE is");
  } else {
    type = QuietEntry(converter, dpt).valueType;
  }
  if (KindOf(type) == ValueKind::NoValue) {
    return ULOVALUE(type);
  }
  if (!options.hasValue) {
    throw InputError("VALUE is missing");
  }
  return ParseValue(type, options.value, options.summerTime);
}

// The group value's size: as given, else the DPT's format size where that
// fits the control field, else all the bytes.
unsigned int GroupValueBits(const KNXDPT& dpt, int bits, const KnxStack::BinaryData& data) {
  if (bits > 0) {
    return static_cast<unsigned int>(bits);
  }
  const std::int32_t formatBits = Nelmo::KnxDptFormat::GetBitSize(dpt);
  if (formatBits > 0 && formatBits <= ControlFieldBits) {
    return static_cast<unsigned int>(formatBits);
  }
  return 8U * data.GetLength();
}

KNXDPT DptWithBits(const std::string& text, int bits) {
  KNXDPT dpt = ParseDpt(text);
  dpt.bitSize = static_cast<std::uint8_t>(bits);
  return dpt;
}

void Decode(const Nelmo::KnxValueConverter& converter, const std::string& payload, int bits, TraceResult& result) {
  ConvertGroupValue(converter, PayloadGroupValue(*result.dpt, payload, bits), result);
}

TraceResult DecodeTelegram(const Nelmo::KnxValueConverter& converter, LogForwarder& log, const Telegram& telegram) {
  TraceResult result;
  result.telegram = telegram;
  if (!telegram.error.empty()) {
    result.error = telegram.error;
    return result;
  }
  try {
    result.dpt = ParseDpt(telegram.dpt);
    log.TakeErrors();
    Decode(converter, telegram.payload, 0, result);
    if (!result.converted) {
      result.error = log.TakeErrors();
    }
  } catch (const InputError& error) {
    result.error = error.what();
  }
  if (!result.converted && result.error.empty()) {
    result.error = "not converted";
  }
  return result;
}

std::vector<TableRow> TableRows(const Nelmo::KnxValueConverter& converter) {
  std::vector<TableRow> rows;
  for (const auto& mainRows : converter.GetDptValueMap().GetEntries()) {
    for (const auto& subRow : mainRows.second) {
      rows.push_back(DescribeRow(subRow.second));
    }
  }
  return rows;
}

}  // namespace

bool EncodeValue(const Nelmo::KnxValueConverter& converter, const Options& options, KNXDPT& dpt,
                 KnxStack::GroupValue& groupValue) {
  const ULOVALUE value = ValueToSend(converter, dpt, options);
  return converter.ToKnxValue(dpt, value, groupValue);
}

KnxStack::GroupValue PayloadGroupValue(const KNXDPT& dpt, const std::string& payload, int bits) {
  const KnxStack::BinaryData data = ParseHex(payload);
  return KnxStack::GroupValue(data, GroupValueBits(dpt, bits, data));
}

void ConvertGroupValue(const Nelmo::KnxValueConverter& converter, const KnxStack::GroupValue& groupValue,
                       TraceResult& result) {
  result.converted = converter.FromKnxValue(*result.dpt, groupValue, result.value);
  if (result.converted) {
    result.subType = QuietEntry(converter, *result.dpt).subType;
  }
}

int RunEncode(const Options& options, std::ostream& out, std::ostream& err) {
  KNXDPT dpt = DptWithBits(options.dpt, options.bits);
  const LogForwarder log(options.logLevel, err);
  const Nelmo::KnxValueConverter converter;
  KnxStack::GroupValue groupValue;
  if (!EncodeValue(converter, options, dpt, groupValue)) {
    return ExitRefused;
  }
  out << (options.json ? JsonLine(EncodeJson(dpt, groupValue)) : groupValue.GetRawData().ToString()) << '\n';
  return ExitSuccess;
}

int RunDecode(const Options& options, std::ostream& out, std::ostream& err) {
  TraceResult result;
  result.dpt = DptWithBits(options.dpt, options.bits);
  // The wanted type matters only where the library has to choose the DPT.
  result.value = ULOVALUE(options.type.empty() ? IVT_ANY : ParseValueType(options.type));
  const LogForwarder log(options.logLevel, err);
  const Nelmo::KnxValueConverter converter;
  Decode(converter, options.value, options.bits, result);
  if (!result.converted) {
    return ExitRefused;
  }
  out << (options.json ? JsonLine(DecodeJson(*result.dpt, result.value, result.subType)) : result.value.ToString())
      << '\n';
  return ExitSuccess;
}

int RunTable(const Options& options, std::ostream& out, std::ostream& err) {
  const LogForwarder log(options.logLevel, err);
  const Nelmo::KnxValueConverter converter;
  const std::vector<TableRow> rows = TableRows(converter);
  out << (options.json ? JsonLine(TableJson(rows)) + "\n" : TableText(rows));
  return ExitSuccess;
}

int RunTrace(const Options& options, std::istream& in, std::ostream& out, std::ostream& err) {
  std::ifstream file;
  if (options.file != "-") {
    file.open(options.file, std::ios::binary);
    if (!file) {
      throw InputError("cannot read the trace " + options.file);
    }
  }
  TraceReader reader(options.file == "-" ? in : file);
  LogForwarder log(options.logLevel, err);
  const Nelmo::KnxValueConverter converter;
  bool allConverted = true;
  Telegram telegram;
  while (reader.Next(telegram)) {
    const TraceResult result = DecodeTelegram(converter, log, telegram);
    allConverted = allConverted && result.converted;
    out << (options.json ? JsonLine(TraceJson(result)) : TraceText(result)) << '\n';
  }
  return allConverted ? ExitSuccess : ExitRefused;
}

}  // namespace Knxconv
