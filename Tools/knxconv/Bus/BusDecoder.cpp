#include "BusDecoder.h"

#include "BusAddress.h"
#include "Conversion.h"
#include "EtsDptText.h"
#include "PayloadSize.h"
#include "UsageError.h"

namespace Knxconv {

namespace {

std::string PayloadHex(const GroupFrame& groupFrame) {
  return groupFrame.service == GroupService::Read ? "" : groupFrame.value.GetRawData().ToString();
}

}  // namespace

BusDecoder::BusDecoder(const std::vector<std::string>& dpts, const std::string& addressFile, OutputContext& context)
    : m_context(context) {
  if (!addressFile.empty()) {
    m_book = ReadAddressFile(addressFile);
  }
  for (const std::string& text : dpts) {
    const std::size_t equals = text.find('=');
    const std::optional<KNXDPT> dpt =
        equals == std::string::npos ? std::nullopt : ParseEtsDpt(std::string_view(text).substr(equals + 1));
    if (!dpt) {
      throw UsageError("--dpt wants GA=DPT, such as 1/2/3=9.001: '" + text + "'");
    }
    m_dpts[ParseGroupAddress(std::string_view(text).substr(0, equals))] = *dpt;
  }
}

BusLine BusDecoder::Decode(const BusFrame& frame) {
  BusLine line;
  line.time = TimeOfDayNow();
  line.source = frame.source;
  line.destination = frame.destination;
  if (const AddressEntry* entry = m_book.Find(frame.destination)) {
    line.name = entry->name;
  }
  const GroupFrame groupFrame = DecodeGroupFrame(frame.bytes);
  if (!groupFrame.error.empty()) {
    line.service = "?";
    line.payload = FrameHex(frame.bytes);
    line.result.error = groupFrame.error;
    return line;
  }
  line.service = GroupServiceText(groupFrame.service);
  line.payload = PayloadHex(groupFrame);
  line.result.dpt = DptOf(line.destination);
  if (groupFrame.service != GroupService::Read && line.result.dpt) {
    Convert(groupFrame, line);
  }
  return line;
}

std::optional<KNXDPT> BusDecoder::DptOf(std::uint16_t address) const {
  const auto dpt = m_dpts.find(address);
  if (dpt != m_dpts.end()) {
    return dpt->second;
  }
  const AddressEntry* entry = m_book.Find(address);
  return entry != nullptr ? entry->dpt : std::nullopt;
}

void BusDecoder::Convert(const GroupFrame& groupFrame, BusLine& line) {
  // A payload too short for the DPT is refused as decode and trace refuse it.
  if (auto error = PayloadSizeError(*line.result.dpt, 0, groupFrame.value.GetRawData())) {
    line.result.error = std::move(*error);
    return;
  }
  m_context.TakeLogErrors();
  ConvertGroupValue(m_converter, groupFrame.value, line.result);
  line.decoded = line.result.converted;
  if (!line.decoded) {
    line.result.error = m_context.TakeLogErrors();
    if (line.result.error.empty()) {
      line.result.error = "not converted";
    }
  }
}

void WriteBusLine(const BusLine& line, OutputContext& context) {
  context.FlushEachLine(true);
  context.PrintResult(BusLineText(line), BusLineJson(line));
}

}  // namespace Knxconv
