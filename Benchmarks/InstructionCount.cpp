// Converts one standard row COUNT times in one direction, for counting
// instructions with callgrind: the difference between two counts divided by
// the difference in COUNT is the cost of one conversion, set-up excluded.
//   InstructionCount to|from MAIN.SUB COUNT

#include <cstdlib>
#include <iostream>
#include <string>

#include "KnxValueConverterApi.h"
#include "StandardRowSamples.h"

namespace {

const TestSupport::RowSample* FindSample(std::uint16_t mainNumber) {
  for (const TestSupport::RowSample& sample : TestSupport::StandardRowSamples()) {
    if (sample.dpt.mainNumber == mainNumber) {
      return &sample;
    }
  }
  return nullptr;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 4) {
    std::cerr << "usage: InstructionCount to|from MAIN.SUB COUNT\n";
    return 2;
  }
  const bool toKnx = std::string(argv[1]) == "to";
  const std::string dptText = argv[2];
  const long count = std::strtol(argv[3], nullptr, 10);
  const auto dot = dptText.find('.');
  const auto mainNumber = static_cast<std::uint16_t>(std::stoul(dptText.substr(0, dot)));
  const auto subNumber = static_cast<std::uint16_t>(std::stoul(dptText.substr(dot + 1)));
  const TestSupport::RowSample* sample = FindSample(mainNumber);
  if (sample == nullptr) {
    std::cerr << "no sample for main number " << mainNumber << "\n";
    return 2;
  }
  UloLogSetThreshold(ULO_LOG_OFF);
  const Nelmo::KnxValueConverter converter;
  KNXDPT dpt = sample->dpt;
  dpt.subNumber = subNumber;
  const KnxStack::GroupValue received(
      KnxStack::BinaryData(sample->bytes.data(), static_cast<unsigned int>(sample->bytes.size())), dpt.bitSize);
  KnxStack::GroupValue sent;
  ULOVALUE value;
  long failures = 0;
  for (long i = 0; i < count; ++i) {
    const bool converted =
        toKnx ? converter.ToKnxValue(dpt, sample->value, sent) : converter.FromKnxValue(dpt, received, value);
    failures += converted ? 0 : 1;
  }
  return failures == 0 ? 0 : 1;
}
