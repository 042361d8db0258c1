#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "AddressBook.h"
#include "BusConnection.h"
#include "BusLine.h"
#include "KnxValueConverterApi.h"
#include "OutputContext.h"

namespace Knxconv {

// Turns frames from the bus into lines: the DPT of a group address comes
// from --dpt, else from the addresses file; without one the frame is shown
// raw. The value goes through the same conversion as decode and trace.
class BusDecoder {
 public:
  // dpts are "GA=DPT" texts; addressFile may be empty. Throws UsageError
  // for a malformed --dpt and AddressFileError for a malformed file. The
  // library's errors are taken from context.
  BusDecoder(const std::vector<std::string>& dpts, const std::string& addressFile, OutputContext& context);

  BusLine Decode(const BusFrame& frame);
  void SetDpt(std::uint16_t address, const KNXDPT& dpt) { m_dpts[address] = dpt; }

 private:
  std::optional<KNXDPT> DptOf(std::uint16_t address) const;
  void Convert(const GroupFrame& groupFrame, BusLine& line);

  std::map<std::uint16_t, KNXDPT> m_dpts;
  AddressBook m_book;
  OutputContext& m_context;
  Nelmo::KnxValueConverter m_converter;
};

// One line of output, flushed at once so that a pipe sees it as it comes.
void WriteBusLine(const BusLine& line, OutputContext& context);

}  // namespace Knxconv
