// Cost of one conversion per standard row and direction, through the facade
// and through the hand-written floor, for counting instructions with
// callgrind. Each measurement runs COUNT and then 2 * COUNT conversions, each
// run between a zeroing and a dump of callgrind's counters labelled
// "DIRECTION ROW SIDE RUNS"; the difference of the two dumps divided by COUNT
// is one conversion, set-up excluded. Outside valgrind the requests do
// nothing. First both sides convert every row once and must agree on bytes
// and value.
//   InstructionCount [COUNT]

#include <valgrind/callgrind.h>

#include <cstdlib>
#include <iostream>
#include <string>

#include "FloorConversions.h"
#include "KnxValueConverterApi.h"
#include "StandardRowSamples.h"

namespace {

using TestSupport::RowSample;

struct Subject {
  const Nelmo::KnxValueConverter& facade;
  const RowSample& sample;
  const Floor::Conversion& floor;
  KNXDPT dpt;
  KnxStack::GroupValue received;
};

KnxStack::GroupValue Received(const RowSample& sample) {
  return KnxStack::GroupValue(KnxStack::BinaryData(sample.bytes.data(), static_cast<unsigned int>(sample.bytes.size())),
                              sample.dpt.bitSize);
}

bool SameTime(const ULOTIME& first, const ULOTIME& second) {
  return first.year == second.year && first.month == second.month && first.day == second.day &&
         first.hour == second.hour && first.minute == second.minute && first.second == second.second &&
         first.weekday == second.weekday && first.summerTime == second.summerTime && first.isSet == second.isSet;
}

bool SameValue(const ULOVALUE& first, const ULOVALUE& second) {
  return first.GetType() == second.GetType() && first.ToString() == second.ToString() &&
         SameTime(first.GetTime(), second.GetTime());
}

bool SameGroupValue(const KnxStack::GroupValue& first, const KnxStack::GroupValue& second) {
  return first.GetDefinedSize() == second.GetDefinedSize() &&
         first.GetRawData().ToString() == second.GetRawData().ToString();
}

// Both sides in both directions once; a difference is reported.
bool Agree(Subject& subject) {
  KnxStack::GroupValue byFacade;
  KnxStack::GroupValue byFloor;
  const bool sent = subject.facade.ToKnxValue(subject.dpt, subject.sample.value, byFacade);
  subject.floor.toKnx(subject.sample.value, byFloor);
  ULOVALUE fromFacade;
  ULOVALUE fromFloor;
  const bool received = subject.facade.FromKnxValue(subject.dpt, subject.received, fromFacade);
  subject.floor.fromKnx(subject.received, fromFloor);
  bool agree = true;
  if (!sent || !SameGroupValue(byFacade, byFloor)) {
    std::cerr << subject.sample.name << " to KNX: facade " << byFacade.GetRawData().ToString() << ", floor "
              << byFloor.GetRawData().ToString() << "\n";
    agree = false;
  }
  if (!received || !SameValue(fromFacade, fromFloor)) {
    std::cerr << subject.sample.name << " from KNX: facade " << fromFacade.GetType() << " " << fromFacade.ToString()
              << ", floor " << fromFloor.GetType() << " " << fromFloor.ToString() << "\n";
    agree = false;
  }
  return agree;
}

[[gnu::noinline]] void FacadeTo(Subject& subject, long runs, KnxStack::GroupValue& sent) {
  for (long run = 0; run < runs; ++run) {
    subject.facade.ToKnxValue(subject.dpt, subject.sample.value, sent);
  }
}

[[gnu::noinline]] void FacadeFrom(Subject& subject, long runs, ULOVALUE& value) {
  for (long run = 0; run < runs; ++run) {
    subject.facade.FromKnxValue(subject.dpt, subject.received, value);
  }
}

[[gnu::noinline]] void FloorTo(Subject& subject, long runs, KnxStack::GroupValue& sent) {
  for (long run = 0; run < runs; ++run) {
    subject.floor.toKnx(subject.sample.value, sent);
  }
}

[[gnu::noinline]] void FloorFrom(Subject& subject, long runs, ULOVALUE& value) {
  for (long run = 0; run < runs; ++run) {
    subject.floor.fromKnx(subject.received, value);
  }
}

template <typename Output>
void Measure(Subject& subject, const char* label, void (*repeat)(Subject&, long, Output&), long count) {
  Output output;
  repeat(subject, 1, output);  // first-use set-up stays out of the counts
  for (long runs : {count, 2 * count}) {
    const std::string name = std::string(label) + " " + std::to_string(runs);
    CALLGRIND_ZERO_STATS;
    repeat(subject, runs, output);
    CALLGRIND_DUMP_STATS_AT(name.c_str());
  }
}

}  // namespace

int main(int argc, char** argv) {
  const long count = argc > 1 ? std::strtol(argv[1], nullptr, 10) : 1000;
  UloLogSetThreshold(ULO_LOG_OFF);
  const Nelmo::KnxValueConverter facade;
  bool agree = true;
  for (const RowSample& sample : TestSupport::StandardRowSamples()) {
    const Floor::Conversion* floor = Floor::Find(sample.name);
    if (floor == nullptr) {
      std::cerr << sample.name << ": no floor conversion\n";
      return 2;
    }
    Subject subject{facade, sample, *floor, sample.dpt, Received(sample)};
    if (!Agree(subject)) {
      agree = false;
      continue;
    }
    const std::string row = sample.name;
    Measure(subject, ("to " + row + " facade").c_str(), FacadeTo, count);
    Measure(subject, ("to " + row + " floor").c_str(), FloorTo, count);
    Measure(subject, ("from " + row + " facade").c_str(), FacadeFrom, count);
    Measure(subject, ("from " + row + " floor").c_str(), FloorFrom, count);
  }
  return agree ? 0 : 1;
}
