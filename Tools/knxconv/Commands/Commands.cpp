#include "Commands.h"

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <optional>
#include <vector>

#include "CalendarCheck.h"
#include "DptText.h"
#include "HexText.h"
#include "InputError.h"
#include "KnxValueConverterApi.h"
#include "LogForwarder.h"
#include "NumberDisplay.h"
#include "Output.h"
#include "PayloadSize.h"
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

// Converts the payload, unless it cannot hold the DPT's value: then the
// reason is the result's error.
void Decode(const Nelmo::KnxValueConverter& converter, const std::string& payload, int bits, TraceResult& result) {
  const KnxStack::BinaryData data = ParseHex(payload);
  if (auto error = PayloadSizeError(*result.dpt, static_cast<unsigned int>(bits), data)) {
    result.error = std::move(*error);
    return;
  }
  const KnxStack::GroupValue groupValue(data, GroupValueBits(*result.dpt, bits, data));
  result.converted = converter.FromKnxValue(*result.dpt, groupValue, result.value);
  if (result.converted) {
    result.subType = QuietEntry(converter, *result.dpt).subType;
    result.text = DisplayText(converter, *result.dpt, result.value, groupValue);
  }
}

// Why the value read for dpt is not sent, or nullopt: the converters send
// impossible dates and times as they are given.
std::optional<std::string> SendError(const Nelmo::KnxValueConverter& converter, const KNXDPT& dpt,
                                     const ULOVALUE& value) {
  if (auto error = CalendarError(value)) {
    return error;
  }
  return YearWindowError(dpt, QuietEntry(converter, dpt).GetConverter(), value);
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
    if (!result.converted && result.error.empty()) {
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

// Opens the trace file; InputError says in the system's words why not.
void OpenTrace(const std::string& path, std::ifstream& file) {
  errno = 0;
  file.open(path, std::ios::binary);
  int error = errno;
  std::error_code ignored;
  // A directory opens like a file and fails only when read.
  if (file && std::filesystem::is_directory(path, ignored)) {
    error = EISDIR;
  } else if (file) {
    return;
  }
  throw InputError("cannot read the trace '" + path + "': " + std::strerror(error != 0 ? error : EIO));
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

int RunEncode(const Options& options, std::ostream& out, std::ostream& err) {
  KNXDPT dpt = DptWithBits(options.dpt, options.bits);
  const LogForwarder log(options.logLevel, err);
  const Nelmo::KnxValueConverter converter;
  const ULOVALUE value = ValueToSend(converter, dpt, options);
  if (const auto error = SendError(converter, dpt, value)) {
    err << "knxconv: " << *error << '\n';
    return ExitRefused;
  }
  KnxStack::GroupValue groupValue;
  if (!converter.ToKnxValue(dpt, value, groupValue)) {
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
  if (!result.error.empty()) {
    err << "knxconv: " << result.error << '\n';
  }
  if (!result.converted) {
    return ExitRefused;
  }
  out << (options.json ? JsonLine(DecodeJson(*result.dpt, result.value, result.subType)) : result.text) << '\n';
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
    OpenTrace(options.file, file);
  }
  std::istream& source = options.file == "-" ? in : file;
  TraceReader reader(source);
  LogForwarder log(options.logLevel, err);
  const Nelmo::KnxValueConverter converter;
  bool allConverted = true;
  Telegram telegram;
  while (reader.Next(telegram)) {
    const TraceResult result = DecodeTelegram(converter, log, telegram);
    allConverted = allConverted && result.converted;
    out << (options.json ? JsonLine(TraceJson(result)) : TraceText(result)) << '\n';
  }
  if (source.bad()) {
    throw InputError("cannot read the trace '" + options.file + "' to its end");
  }
  return allConverted ? ExitSuccess : ExitRefused;
}

}  // namespace Knxconv
