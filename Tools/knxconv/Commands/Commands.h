#pragma once

#include <istream>
#include <ostream>
#include <string>

#include "KnxValueConverterApi.h"
#include "Output.h"

namespace Knxconv {

// Exit statuses of the tool.
enum ExitStatus : int {
  ExitSuccess = 0,
  ExitRefused = 1,  // the library refused, or a trace line did not convert
  ExitUsage = 2,    // a usage error or unreadable input
};

// What the command line asked for; the texts are read by the commands.
struct Options {
  std::string dpt;
  std::string value;  // VALUE of encode, HEX of decode
  bool hasValue = false;
  std::string type;  // --type, empty when not given
  int bits = 0;      // --bits, 0 when not given
  bool summerTime = false;
  bool json = false;
  int logLevel = 3;
  std::string file = "-";
};

// The commands write their result to out and the library's log to err.
// Input they cannot read throws InputError, which the caller reports as a
// usage error.
// The group value that encode makes of VALUE; false when the library
// refused (its log says why). dpt is completed as the library completes it.
bool EncodeValue(const Nelmo::KnxValueConverter& converter, const Options& options, KNXDPT& dpt,
                 KnxStack::GroupValue& groupValue);
// The group value that decode and trace read from hex bytes: bits as
// given, else the DPT's size where it fits the control field, else 8 per
// byte. Throws InputError for malformed hex.
KnxStack::GroupValue PayloadGroupValue(const KNXDPT& dpt, const std::string& payload, int bits);
// What decode and trace make of a received group value, for result.dpt.
void ConvertGroupValue(const Nelmo::KnxValueConverter& converter, const KnxStack::GroupValue& groupValue,
                       TraceResult& result);

int RunEncode(const Options& options, std::ostream& out, std::ostream& err);
int RunDecode(const Options& options, std::ostream& out, std::ostream& err);
int RunTable(const Options& options, std::ostream& out, std::ostream& err);
// Reads the trace from options.file, or from in for "-".
int RunTrace(const Options& options, std::istream& in, std::ostream& out, std::ostream& err);

}  // namespace Knxconv
