#include <gtest/gtest.h>

#include <memory>
#include <type_traits>
#include <utility>
#include <vector>

#include "ConverterLines.h"
#include "DptValueMap.h"
#include "KnxConverterDefault.h"
#include "KnxValueConverter.h"
#include "LogCapture.h"
#include "RecordingConverter.h"

namespace {

using Nelmo::DptValueEntry;
using Nelmo::DptValueMap;
using TestConverters::RecordingConverter;
using TestConverters::Script;
using TestSupport::LogCapture;
using TestSupport::LogLine;

static_assert(!std::is_copy_constructible_v<DptValueEntry>, "rows own their converter");
static_assert(!std::is_copy_assignable_v<DptValueEntry>, "rows own their converter");
static_assert(std::is_nothrow_move_constructible_v<DptValueEntry>, "rows move into the map");
static_assert(std::is_nothrow_move_assignable_v<DptValueEntry>, "rows move into the map");

LogLine GetEntryLine(const std::string& text) {
  return TestSupport::FacadeLine("GetEntry", text);
}

void ExpectEmptyEntry(const DptValueEntry& entry) {
  EXPECT_EQ(&entry, &DptValueMap::GetEmptyEntry());
  EXPECT_EQ(entry.valueType, IVT_ANY);
  EXPECT_EQ(entry.subType, UloDP::IVST_NONE);
  EXPECT_EQ(entry.dpt.bitSize, 0);
  EXPECT_EQ(entry.dpt.mainNumber, 0);
  EXPECT_EQ(entry.dpt.subNumber, 0);
  EXPECT_NE(dynamic_cast<Nelmo::KnxConverterDefault*>(entry.GetConverter()), nullptr);
}

// Rows as a table would register them; each has a converter of its own.
struct Registration {
  KNXDPT dpt;
  UloValueType valueType;
  UloDP::UloValueSubType subType;
};

const Registration Registrations[] = {
    {{16, 9, 0}, IVT_DOUBLE, UloDP::IVST_NONE},        {{16, 9, 1}, IVT_DOUBLE, UloDP::IVST_TEMPERATURE},
    {{16, 9, 4}, IVT_DOUBLE, UloDP::IVST_ILLUMINANCE}, {{24, 10, 0}, IVT_TIME, UloDP::IVST_NONE},
    {{24, 10, 1}, IVT_TIME, UloDP::IVST_NONE},         {{24, 250, 0}, IVT_UINT32, UloDP::IVST_NONE},
    {{32, 13, 100}, IVT_TIMESPAN, UloDP::IVST_NONE},
};

class DptValueMapLookup : public ::testing::Test {
 protected:
  void SetUp() override {
    for (const Registration& row : Registrations) {
      ASSERT_TRUE(m_map.AddEntry(
          row.dpt, DptValueEntry(row.dpt, row.valueType, row.subType, std::make_unique<Nelmo::KnxConverterDefault>())));
    }
  }

  DptValueMap m_map;
};

struct FoundRow {
  KNXDPT lookup;
  std::uint16_t rowMain;
  std::uint16_t rowSub;
  UloDP::UloValueSubType subType;
};

// 9.010 and 250.600 have no row of their own and get their main.x row.
const FoundRow FoundRows[] = {
    {{16, 9, 1}, 9, 1, UloDP::IVST_TEMPERATURE},  {{16, 9, 4}, 9, 4, UloDP::IVST_ILLUMINANCE},
    {{16, 9, 10}, 9, 0, UloDP::IVST_NONE},        {{16, 9, 0}, 9, 0, UloDP::IVST_NONE},
    {{24, 250, 600}, 250, 0, UloDP::IVST_NONE},   {{24, 10, 0}, 10, 0, UloDP::IVST_NONE},
    {{24, 10, 1}, 10, 1, UloDP::IVST_NONE},       {{24, 10, 2}, 10, 0, UloDP::IVST_NONE},
    {{32, 13, 100}, 13, 100, UloDP::IVST_NONE},   {{0, 9, 1}, 9, 1, UloDP::IVST_TEMPERATURE},
    {{255, 9, 1}, 9, 1, UloDP::IVST_TEMPERATURE},
};

TEST_F(DptValueMapLookup, FindsTheRowOrItsMainTypeRowSilently) {
  LogCapture capture;
  for (const FoundRow& row : FoundRows) {
    SCOPED_TRACE(::testing::Message() << row.lookup.mainNumber << "." << row.lookup.subNumber);
    const DptValueEntry& entry = m_map.GetEntry(row.lookup);
    EXPECT_EQ(entry.dpt.mainNumber, row.rowMain);
    EXPECT_EQ(entry.dpt.subNumber, row.rowSub);
    EXPECT_EQ(entry.subType, row.subType);
    EXPECT_NE(&entry, &DptValueMap::GetEmptyEntry());
  }
  EXPECT_TRUE(capture.Lines().empty());
}

struct MissingRow {
  KNXDPT lookup;
  const char* message;
};

// Main 13 has only the row 13.100: sub 0 reports main.0, other subs main.x.
const MissingRow MissingRows[] = {
    {{40, 218, 0}, "No Entry found for DPT = 218.0"},
    {{16, 99, 1}, "No Entry found for DPT = 99.1"},
    {{0, 0, 0}, "No Entry found for DPT = 0.0"},
    {{32, 13, 0}, "No Entry found for DPT = 13.0"},
    {{32, 13, 5}, "No Entry found for DPT = 13.x"},
    {{32, 13, 99}, "No Entry found for DPT = 13.x"},
    {{8, 65535, 65535}, "No Entry found for DPT = 65535.65535"},
};

TEST_F(DptValueMapLookup, AnswersAMissingRowWithTheEmptyEntryAndOneLine) {
  for (const MissingRow& row : MissingRows) {
    SCOPED_TRACE(row.message);
    LogCapture capture;
    ExpectEmptyEntry(m_map.GetEntry(row.lookup));
    EXPECT_EQ(capture.Lines(), std::vector<LogLine>{GetEntryLine(row.message)});
  }
}

TEST_F(DptValueMapLookup, WritesNothingForAMissingRowWhileLoggingIsOff) {
  LogCapture capture(ULO_LOG_OFF);
  ExpectEmptyEntry(m_map.GetEntry(KNXDPT{40, 218, 0}));
  EXPECT_TRUE(capture.Lines().empty());
}

TEST(DptValueMapEmptyEntry, IsOneObjectForEveryCallAndEveryMap) {
  LogCapture capture(ULO_LOG_OFF);
  DptValueMap first;
  DptValueMap second;
  DptValueEntry& empty = DptValueMap::GetEmptyEntry();
  EXPECT_EQ(&DptValueMap::GetEmptyEntry(), &empty);
  EXPECT_EQ(&first.GetEntry(KNXDPT{8, 5, 1}), &empty);
  EXPECT_EQ(&second.GetEntry(KNXDPT{16, 9, 1}), &empty);
  ExpectEmptyEntry(empty);
}

DptValueEntry RecordingEntry(const KNXDPT& dpt, UloDP::UloValueSubType subType, const std::shared_ptr<Script>& script) {
  return DptValueEntry(dpt, IVT_DOUBLE, subType, RecordingConverter(script).Clone());
}

TEST(DptValueMapAddEntry, KeepsTheFirstRowOfADptAndDropsTheSecond) {
  const KNXDPT dpt{16, 9, 1};
  auto first = std::make_shared<Script>();
  auto second = std::make_shared<Script>();
  DptValueMap map;
  EXPECT_TRUE(map.AddEntry(dpt, RecordingEntry(dpt, UloDP::IVST_TEMPERATURE, first)));
  EXPECT_TRUE(map.AddEntry(dpt, RecordingEntry(dpt, UloDP::IVST_PERCENT, second)));
  EXPECT_EQ(map.GetEntry(dpt).subType, UloDP::IVST_TEMPERATURE);
  EXPECT_EQ(first->clonesAlive, 1);
  EXPECT_EQ(second->clonesAlive, 0);
}

TEST(DptValueMapAddEntry, AddsUnderANewAndAnExistingMainNumber) {
  auto script = std::make_shared<Script>();
  DptValueMap map;
  EXPECT_TRUE(map.AddEntry(KNXDPT{16, 9, 0}, RecordingEntry(KNXDPT{16, 9, 0}, UloDP::IVST_NONE, script)));
  EXPECT_TRUE(map.AddEntry(KNXDPT{16, 9, 5}, RecordingEntry(KNXDPT{16, 9, 5}, UloDP::IVST_WIND_SPEED, script)));
  EXPECT_EQ(map.GetEntry(KNXDPT{16, 9, 5}).subType, UloDP::IVST_WIND_SPEED);
  EXPECT_EQ(map.GetEntry(KNXDPT{16, 9, 0}).subType, UloDP::IVST_NONE);
  EXPECT_EQ(script->clonesAlive, 2);
}

TEST(DptValueMapAddEntry, StoresTheRowUnderTheGivenKey) {
  auto script = std::make_shared<Script>();
  DptValueMap map;
  // The key decides where the row goes, not the row's own DPT.
  EXPECT_TRUE(map.AddEntry(KNXDPT{8, 5, 1}, RecordingEntry(KNXDPT{16, 9, 1}, UloDP::IVST_PERCENT, script)));
  EXPECT_EQ(map.GetEntry(KNXDPT{8, 5, 1}).subType, UloDP::IVST_PERCENT);
}

TEST(DptValueMapClear, RemovesEveryRowAndDestroysTheConverters) {
  LogCapture capture(ULO_LOG_OFF);
  auto script = std::make_shared<Script>();
  DptValueMap map;
  map.AddEntry(KNXDPT{16, 9, 0}, RecordingEntry(KNXDPT{16, 9, 0}, UloDP::IVST_NONE, script));
  map.AddEntry(KNXDPT{16, 9, 1}, RecordingEntry(KNXDPT{16, 9, 1}, UloDP::IVST_TEMPERATURE, script));
  map.AddEntry(KNXDPT{8, 5, 0}, RecordingEntry(KNXDPT{8, 5, 0}, UloDP::IVST_NONE, script));
  EXPECT_TRUE(map.Clear());
  EXPECT_EQ(script->clonesAlive, 0);
  ExpectEmptyEntry(map.GetEntry(KNXDPT{16, 9, 1}));
  ExpectEmptyEntry(map.GetEntry(KNXDPT{8, 5, 0}));
  EXPECT_TRUE(map.Clear());
}

TEST(DptValueMapDestruction, DestroysTheConverters) {
  auto script = std::make_shared<Script>();
  {
    DptValueMap map;
    map.AddEntry(KNXDPT{16, 9, 1}, RecordingEntry(KNXDPT{16, 9, 1}, UloDP::IVST_NONE, script));
    EXPECT_EQ(script->clonesAlive, 1);
  }
  EXPECT_EQ(script->clonesAlive, 0);
}

TEST(DptValueEntryOwnership, MovingHandsTheConverterOnAndLeavesNullBehind) {
  auto script = std::make_shared<Script>();
  DptValueEntry source = RecordingEntry(KNXDPT{16, 9, 1}, UloDP::IVST_TEMPERATURE, script);
  Nelmo::KnxConverter* converter = source.GetConverter();
  DptValueEntry moved(std::move(source));
  EXPECT_EQ(source.GetConverter(), nullptr);  // NOLINT(bugprone-use-after-move): the moved-from state is under test
  EXPECT_EQ(moved.GetConverter(), converter);
  EXPECT_EQ(moved.dpt.mainNumber, 9);
  EXPECT_EQ(moved.dpt.subNumber, 1);
  EXPECT_EQ(moved.valueType, IVT_DOUBLE);
  EXPECT_EQ(moved.subType, UloDP::IVST_TEMPERATURE);

  DptValueEntry assigned;
  assigned = std::move(moved);
  EXPECT_EQ(moved.GetConverter(), nullptr);  // NOLINT(bugprone-use-after-move): as above
  EXPECT_EQ(assigned.GetConverter(), converter);
  EXPECT_EQ(script->clonesAlive, 1);
}

TEST(DptValueEntryOwnership, DeletesItsConverterWhenDestroyedOrReassigned) {
  auto script = std::make_shared<Script>();
  {
    DptValueEntry entry = RecordingEntry(KNXDPT{16, 9, 1}, UloDP::IVST_NONE, script);
    EXPECT_EQ(script->clonesAlive, 1);
    entry = DptValueEntry();
    EXPECT_EQ(script->clonesAlive, 0);
    entry = RecordingEntry(KNXDPT{16, 9, 1}, UloDP::IVST_NONE, script);
  }
  EXPECT_EQ(script->clonesAlive, 0);
}

TEST(DptValueEntryOwnership, DefaultEntryHasNoConverter) {
  const DptValueEntry entry;
  EXPECT_EQ(entry.GetConverter(), nullptr);
  EXPECT_EQ(entry.valueType, IVT_ANY);
  EXPECT_EQ(entry.subType, UloDP::IVST_NONE);
  EXPECT_EQ(entry.dpt.mainNumber, 0);
}

// The facade's registration: a clone goes into the map, the caller keeps
// (and may reuse) its own converter.
class FacadeRegistration : public ::testing::Test {
 protected:
  void SetUp() override { m_facade.Clear(); }

  Nelmo::KnxValueConverter m_facade;
};

TEST_F(FacadeRegistration, StoresACloneWithTheRowsFields) {
  auto script = std::make_shared<Script>();
  RecordingConverter prototype(script);
  EXPECT_TRUE(m_facade.AddDptValueMapEntry(9, 1, 16, IVT_DOUBLE, UloDP::IVST_TEMPERATURE, prototype));
  const DptValueEntry& entry = m_facade.GetEntry(KNXDPT{16, 9, 1});
  EXPECT_EQ(entry.dpt.bitSize, 16);
  EXPECT_EQ(entry.dpt.mainNumber, 9);
  EXPECT_EQ(entry.dpt.subNumber, 1);
  EXPECT_EQ(entry.valueType, IVT_DOUBLE);
  EXPECT_EQ(entry.subType, UloDP::IVST_TEMPERATURE);
  ASSERT_NE(entry.GetConverter(), nullptr);
  EXPECT_NE(entry.GetConverter(), &prototype);
  EXPECT_NE(dynamic_cast<RecordingConverter*>(entry.GetConverter()), nullptr);
  EXPECT_EQ(script->clonesAlive, 1);
}

TEST_F(FacadeRegistration, AddingADptTwiceKeepsTheFirstRowAndDeletesTheSecondClone) {
  auto first = std::make_shared<Script>();
  auto second = std::make_shared<Script>();
  EXPECT_TRUE(m_facade.AddDptValueMapEntry(9, 1, 16, IVT_DOUBLE, UloDP::IVST_TEMPERATURE, RecordingConverter(first)));
  EXPECT_TRUE(m_facade.AddDptValueMapEntry(9, 1, 8, IVT_BYTE, UloDP::IVST_PERCENT, RecordingConverter(second)));
  const DptValueEntry& entry = m_facade.GetEntry(KNXDPT{16, 9, 1});
  EXPECT_EQ(entry.dpt.bitSize, 16);
  EXPECT_EQ(entry.valueType, IVT_DOUBLE);
  EXPECT_EQ(entry.subType, UloDP::IVST_TEMPERATURE);
  EXPECT_EQ(first->clonesAlive, 1);
  EXPECT_EQ(second->clonesAlive, 0);
}

TEST_F(FacadeRegistration, LooksUpThroughTheMapWithItsFallbacks) {
  LogCapture capture;
  Nelmo::KnxConverterDefault prototype;
  m_facade.AddDptValueMapEntry(9, 0, 16, IVT_DOUBLE, UloDP::IVST_NONE, prototype);
  m_facade.AddDptValueMapEntry(9, 1, 16, IVT_DOUBLE, UloDP::IVST_TEMPERATURE, prototype);
  EXPECT_EQ(m_facade.GetEntry(KNXDPT{16, 9, 1}).subType, UloDP::IVST_TEMPERATURE);
  EXPECT_EQ(m_facade.GetEntry(KNXDPT{16, 9, 10}).dpt.subNumber, 0);
  EXPECT_TRUE(capture.Lines().empty());
  ExpectEmptyEntry(m_facade.GetEntry(KNXDPT{40, 218, 0}));
  EXPECT_EQ(capture.Lines(), std::vector<LogLine>{GetEntryLine("No Entry found for DPT = 218.0")});
}

TEST_F(FacadeRegistration, FillingAgainDropsRowsAddedBefore) {
  LogCapture capture(ULO_LOG_OFF);
  auto script = std::make_shared<Script>();
  m_facade.AddDptValueMapEntry(99, 0, 8, IVT_BYTE, UloDP::IVST_NONE, RecordingConverter(script));
  EXPECT_TRUE(m_facade.FillDptValueMap());
  ExpectEmptyEntry(m_facade.GetEntry(KNXDPT{8, 99, 1}));
  EXPECT_EQ(script->clonesAlive, 0);
}

TEST_F(FacadeRegistration, ClearRemovesEveryRow) {
  LogCapture capture(ULO_LOG_OFF);
  auto script = std::make_shared<Script>();
  m_facade.AddDptValueMapEntry(9, 1, 16, IVT_DOUBLE, UloDP::IVST_NONE, RecordingConverter(script));
  EXPECT_TRUE(m_facade.Clear());
  ExpectEmptyEntry(m_facade.GetEntry(KNXDPT{16, 9, 1}));
  EXPECT_EQ(script->clonesAlive, 0);
}

TEST(FacadeInit, DoesNothingButSucceed) {
  Nelmo::KnxValueConverter facade;
  EXPECT_TRUE(facade.Init());
}

}  // namespace
