#include "Conversion.h"

#include "CalendarCheck.h"
#include "CatalogueInput.h"
#include "DptText.h"
#include "HexText.h"
#include "InputError.h"
#include "LogForwarder.h"
#include "NumberDisplay.h"
#include "PayloadSize.h"
#include "UsageError.h"
#include "ValueText.h"

namespace Knxconv {

namespace {

// Values of up to 6 bits travel inside the telegram's control field.
constexpr std::int32_t ControlFieldBits = 6;

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

// The payload's bytes into data, or why it is not hex. Most payloads are hex
// pairs and blanks already, and read as they are just as normalised; only
// the others need a normalised copy, which also words the refusal.
std::optional<std::string> ReadPayload(const std::string& payload, KnxStack::BinaryData& data) {
  if (!ReadHex(payload, data)) {
    return std::nullopt;
  }
  return ReadHex(NormaliseHex(payload), data);
}

KnxStack::BinaryData PayloadBytes(const std::string& payload) {
  KnxStack::BinaryData data;
  if (std::optional<std::string> error = ReadPayload(payload, data)) {
    throw InputError(*error);
  }
  return data;
}

// The row of dpt: from rows where given, else looked up with its scale.
CachedRow RowOf(const Nelmo::KnxValueConverter& converter, const KNXDPT& dpt, RowCache* rows) {
  return rows != nullptr ? rows->Find(converter, dpt) : LookUpRow(converter, dpt);
}

// ConvertGroupValue, the row found through rows where given.
void Convert(const Nelmo::KnxValueConverter& converter, const KnxStack::GroupValue& groupValue, TraceResult& result,
             ValueTextForm text, RowCache* rows) {
  const KnxStack::BinaryData& data = groupValue.GetRawData();
  result.bytes.assign(data.GetData(), data.GetData() + data.GetLength());
  result.converted = converter.FromKnxValue(*result.dpt, groupValue, result.value);
  if (result.converted) {
    // After the conversion: the library completes the DPT it was given.
    const CachedRow row = RowOf(converter, *result.dpt, rows);
    result.subType = row.entry->subType;
    result.catalogueSubtype = row.subtype;
    if (text == ValueTextForm::Made) {
      result.text = DisplayText(row.entry->GetConverter(), row.scale, *result.dpt, result.value, groupValue);
    }
  }
}

// Decode from the payload's bytes.
void DecodeBytes(const Nelmo::KnxValueConverter& converter, const KnxStack::BinaryData& data, int bits,
                 TraceResult& result, ValueTextForm text, RowCache* rows) {
  if (auto error = PayloadSizeError(*result.dpt, static_cast<unsigned int>(bits), data)) {
    result.error = std::move(*error);
    return;
  }
  Convert(converter, KnxStack::GroupValue(data, GroupValueBits(*result.dpt, bits, data)), result, text, rows);
}

}  // namespace

const Nelmo::DptValueEntry& QuietEntry(const Nelmo::KnxValueConverter& converter, const KNXDPT& dpt) {
  const QuietLog quiet;
  return converter.GetEntry(dpt);
}

KNXDPT DptWithBits(const std::string& text, int bits) {
  KNXDPT dpt = ParseDpt(text);
  dpt.bitSize = static_cast<std::uint8_t>(bits);
  return dpt;
}

void Decode(const Nelmo::KnxValueConverter& converter, const std::string& payload, int bits, TraceResult& result,
            ValueTextForm text) {
  DecodeBytes(converter, PayloadBytes(payload), bits, result, text, nullptr);
}

void DecodeOrRefuse(const Nelmo::KnxValueConverter& converter, const std::string& payload, TraceResult& result,
                    ValueTextForm text, RowCache& rows) {
  KnxStack::BinaryData data;
  if (std::optional<std::string> error = ReadPayload(payload, data)) {
    result.error = std::move(*error);
    return;
  }
  DecodeBytes(converter, data, 0, result, text, &rows);
}

KnxStack::GroupValue PayloadGroupValue(const KNXDPT& dpt, const std::string& payload, int bits) {
  const KnxStack::BinaryData data = PayloadBytes(payload);
  return KnxStack::GroupValue(data, GroupValueBits(dpt, bits, data));
}

void ConvertGroupValue(const Nelmo::KnxValueConverter& converter, const KnxStack::GroupValue& groupValue,
                       TraceResult& result, ValueTextForm text) {
  Convert(converter, groupValue, result, text, nullptr);
}

ULOVALUE ValueToSend(const Nelmo::KnxValueConverter& converter, const KNXDPT& dpt, const Arguments& arguments) {
  UloValueType type = IVT_ANY;
  if (const std::optional<std::string> typeName = arguments.Value("--type")) {
    type = ParseValueType(*typeName);
  } else if (dpt.mainNumber == 0) {
    throw UsageError("without a DPT, --type must say what VALUE is");
  } else {
    type = QuietEntry(converter, dpt).valueType;
  }
  if (KindOf(type) == ValueKind::NoValue) {
    return ULOVALUE(type);
  }
  const std::optional<std::string> value = arguments.Positional("VALUE");
  if (!value) {
    throw UsageError("VALUE is missing");
  }
  return ParseValue(type, NormaliseValue(dpt, type, *value), arguments.Flag("--summer-time"));
}

std::optional<std::string> SendError(const Nelmo::KnxValueConverter& converter, const KNXDPT& dpt,
                                     const ULOVALUE& value) {
  if (auto error = CalendarError(value)) {
    return error;
  }
  return YearWindowError(dpt, QuietEntry(converter, dpt).GetConverter(), value);
}

Encoded EncodeValue(const Nelmo::KnxValueConverter& converter, KNXDPT& dpt, const Arguments& arguments,
                    OutputContext& context) {
  Encoded encoded;
  const ULOVALUE value = ValueToSend(converter, dpt, arguments);
  if (const std::optional<std::string> error = SendError(converter, dpt, value)) {
    encoded.status = context.Fail(ExitRefused, *error);
  } else if (!converter.ToKnxValue(dpt, value, encoded.groupValue)) {
    encoded.status = context.Refused();
  }
  return encoded;
}

}  // namespace Knxconv
