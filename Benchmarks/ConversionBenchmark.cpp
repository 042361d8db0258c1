// Cost of one conversion per standard DPT row, both directions, through a
// KnxValueConverter with logging off, and the heap allocations it makes.

#include <benchmark/benchmark.h>

#include <cstdint>
#include <stdexcept>
#include <string>

#include "CountedAllocations.h"
#include "KnxValueConverterApi.h"
#include "StandardRowSamples.h"

namespace {

using TestSupport::RowSample;

const Nelmo::KnxValueConverter& Converter() {
  static const Nelmo::KnxValueConverter converter;
  return converter;
}

void ReportAllocations(benchmark::State& state, std::uint64_t before) {
  const double allocations = static_cast<double>(CountedAllocations::Total() - before);
  state.counters["allocs_per_op"] = benchmark::Counter(allocations / static_cast<double>(state.iterations()));
}

void ToKnx(benchmark::State& state, const RowSample& sample) {
  const Nelmo::KnxValueConverter& converter = Converter();
  KnxStack::GroupValue groupValue;
  KNXDPT dpt = sample.dpt;
  if (!converter.ToKnxValue(dpt, sample.value, groupValue)) {
    state.SkipWithError("conversion refused");
    return;
  }
  const std::uint64_t before = CountedAllocations::Total();
  for (auto _ : state) {
    bool converted = converter.ToKnxValue(dpt, sample.value, groupValue);
    benchmark::DoNotOptimize(converted);
    benchmark::DoNotOptimize(groupValue);
  }
  ReportAllocations(state, before);
}

void FromKnx(benchmark::State& state, const RowSample& sample) {
  const Nelmo::KnxValueConverter& converter = Converter();
  const KnxStack::GroupValue groupValue(
      KnxStack::BinaryData(sample.bytes.data(), static_cast<unsigned int>(sample.bytes.size())), sample.dpt.bitSize);
  KNXDPT dpt = sample.dpt;
  ULOVALUE value;
  if (!converter.FromKnxValue(dpt, groupValue, value)) {
    state.SkipWithError("conversion refused");
    return;
  }
  const std::uint64_t before = CountedAllocations::Total();
  for (auto _ : state) {
    bool converted = converter.FromKnxValue(dpt, groupValue, value);
    benchmark::DoNotOptimize(converted);
    benchmark::DoNotOptimize(value);
  }
  ReportAllocations(state, before);
}

void Construct(benchmark::State& state) {
  const std::uint64_t before = CountedAllocations::Total();
  for (auto _ : state) {
    Nelmo::KnxValueConverter converter;
    benchmark::DoNotOptimize(converter);
  }
  ReportAllocations(state, before);
}

void RegisterBenchmarks() {
  for (const RowSample& sample : TestSupport::StandardRowSamples()) {
    benchmark::RegisterBenchmark(("ToKnxValue/" + sample.name).c_str(), ToKnx, sample);
    benchmark::RegisterBenchmark(("FromKnxValue/" + sample.name).c_str(), FromKnx, sample);
  }
  benchmark::RegisterBenchmark("KnxValueConverter/Construct", Construct);
}

}  // namespace

int main(int argc, char** argv) {
  UloLogSetThreshold(ULO_LOG_OFF);
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
    return 1;
  }
  RegisterBenchmarks();
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}
