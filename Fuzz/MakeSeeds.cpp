// Writes the seed corpora: for every standard row a valid telegram in each
// fuzzer's input layout. Run once; the seeds are kept in the repository.

#include <cstdint>
#include <cstring>
#include <fstream>
#include <iostream>
#include <string>
#include <vector>

#include "StandardRowSamples.h"

namespace {

using Bytes = std::vector<unsigned char>;

template <typename T>
void Append(Bytes& out, T value) {
  unsigned char bytes[sizeof(T)];
  std::memcpy(bytes, &value, sizeof(T));
  out.insert(out.end(), bytes, bytes + sizeof(T));
}

void AppendBitSize(Bytes& out, std::uint8_t bits) {
  Append<std::uint8_t>(out, 0);
  Append<std::uint8_t>(out, bits);
}

void Write(const std::string& directory, const std::string& name, const Bytes& bytes) {
  std::ofstream file(directory + "/" + name, std::ios::binary);
  file.write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
}

Bytes FromKnxSeed(const TestSupport::RowSample& sample) {
  Bytes out;
  Append<std::uint16_t>(out, sample.dpt.mainNumber);
  Append<std::uint16_t>(out, sample.dpt.subNumber);
  Append<std::uint8_t>(out, sample.dpt.bitSize);
  AppendBitSize(out, sample.dpt.bitSize);
  Append<std::int32_t>(out, sample.value.GetType());
  out.insert(out.end(), sample.bytes.begin(), sample.bytes.end());
  return out;
}

Bytes ToKnxSeed(const TestSupport::RowSample& sample) {
  const ULOVALUE& value = sample.value;
  const ULOTIME& time = value.GetTime();
  Bytes out;
  Append<std::uint16_t>(out, sample.dpt.mainNumber);
  Append<std::uint16_t>(out, sample.dpt.subNumber);
  Append<std::uint8_t>(out, sample.dpt.bitSize);
  Append<std::int32_t>(out, value.GetType());
  Append<std::uint8_t>(out, value.GetBool() ? 1 : 0);
  Append<std::uint64_t>(out, value.GetUInt64());
  Append<double>(out, value.GetDouble());
  Append<std::uint16_t>(out, time.year);
  for (std::uint8_t field : {time.month, time.day, time.hour, time.minute, time.second}) {
    Append<std::uint8_t>(out, field);
  }
  Append<std::uint32_t>(out, static_cast<std::uint32_t>(time.weekday));
  Append<std::uint8_t>(out, time.summerTime);
  Append<std::uint8_t>(out, time.isSet ? 1 : 0);
  out.insert(out.end(), value.GetString().begin(), value.GetString().end());
  return out;
}

Bytes GroupValueSeed(const TestSupport::RowSample& sample) {
  Bytes out;
  AppendBitSize(out, sample.dpt.bitSize);
  out.insert(out.end(), sample.bytes.begin(), sample.bytes.end());
  return out;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "usage: MakeSeeds CORPUS_DIRECTORY\n";
    return 2;
  }
  const std::string root = argv[1];
  for (const TestSupport::RowSample& sample : TestSupport::StandardRowSamples()) {
    const std::string name = "row-" + sample.name;
    Write(root + "/FromKnxValueFuzz", name, FromKnxSeed(sample));
    Write(root + "/ToKnxValueFuzz", name, ToKnxSeed(sample));
    Write(root + "/GroupValueFuzz", name, GroupValueSeed(sample));
  }
  return 0;
}
