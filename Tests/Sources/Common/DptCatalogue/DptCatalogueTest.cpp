#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <cstring>
#include <optional>
#include <set>
#include <string>

#include "CountedAllocations.h"
#include "DptCatalogue.h"

namespace {

using Nelmo::DptCatalogue;
using Nelmo::DptSubtype;

constexpr std::uint16_t Variable = DptCatalogue::VariableBitSize;

struct Fact {
  std::uint16_t mainNumber;
  std::uint16_t subNumber;
  const char* name;
  const char* description;
  const char* unit;
  std::uint16_t bits;
};

// At least one row for every main number of the catalogue.
const Fact Facts[] = {
    {1, 1, "DPT_Switch", "switch", "", 1},
    {1, 8, "DPT_UpDown", "up/down", "", 1},
    {1, 100, "DPT_Heat/Cool", "heat/cool", "", 1},
    {2, 1, "DPT_Switch_Control", "switch with priority", "", 2},
    {3, 7, "DPT_Control_Dimming", "dimming control", "", 4},
    {4, 1, "DPT_Char_ASCII", "ASCII character", "", 8},
    {5, 1, "DPT_Scaling", "percentage (0..100 %)", "%", 8},
    {5, 3, "DPT_Angle", "angle", "°", 8},
    {6, 1, "DPT_Percent_V8", "percentage (-128..127 %)", "%", 8},
    {7, 13, "DPT_Brightness", "brightness", "lx", 16},
    {7, 600, "DPT_Absolute_Colour_Temperature", "absolute colour temperature", "K", 16},
    {8, 10, "DPT_Percent_V16", "percentage difference", "%", 16},
    {9, 1, "DPT_Value_Temp", "temperature", "°C", 16},
    {9, 4, "DPT_Value_Lux", "illuminance", "lx", 16},
    {9, 5, "DPT_Value_Wsp", "wind speed", "m/s", 16},
    {9, 8, "DPT_Value_AirQuality", "air quality", "ppm", 16},
    {9, 30, "DPT_Concentration_µgm3", "concentration", "µg/m³", 16},
    {10, 1, "DPT_TimeOfDay", "time of day", "", 24},
    {11, 1, "DPT_Date", "date", "", 24},
    {12, 1, "DPT_Value_4_Ucount", "counter pulses", "pulses", 32},
    {13, 10, "DPT_ActiveEnergy", "active energy", "Wh", 32},
    {13, 13, "DPT_ActiveEnergy_kWh", "active energy", "kWh", 32},
    {14, 0, "DPT_Value_Acceleration", "acceleration", "m/s²", 32},
    {14, 12, "DPT_Value_Charge_DensitySurface", "charge density (surface)", "C/m²", 32},
    {14, 56, "DPT_Value_Power", "power", "W", 32},
    {14, 1201, "DPT_Volume_Flux_ls", "volume flux", "l/s", 32},
    {15, 0, "DPT_Access_Data", "entrance access", "", 32},
    {16, 0, "DPT_String_ASCII", "ASCII string", "", 112},
    {17, 1, "DPT_SceneNumber", "scene number", "", 8},
    {18, 1, "DPT_SceneControl", "scene control", "", 8},
    {19, 1, "DPT_DateTime", "date and time", "", 64},
    {20, 102, "DPT_HVACMode", "HVAC mode", "", 8},
    {21, 1, "DPT_StatusGen", "general status", "", 8},
    {22, 101, "DPT_StatusRHCC", "RHCC status", "", 16},
    {23, 1, "DPT_OnOffAction", "on/off action", "", 2},
    {24, 1, "DPT_VarString_8859_1", "ISO 8859-1 string of any length", "", Variable},
    {25, 1000, "DPT_DoubleNibble", "busy/nak repetitions", "", 8},
    {26, 1, "DPT_SceneInfo", "scene information", "", 8},
    {27, 1, "DPT_CombinedInfoOnOff", "bit-combined info on/off", "", 32},
    {28, 1, "DPT_UTF-8", "UTF-8 string of any length", "", Variable},
    {29, 10, "DPT_ActiveEnergy_V64", "active energy", "Wh", 64},
    {30, 1010, "DPT_Channel_Activation_24", "channel activation for 24 channels", "", 24},
    {31, 101, "DPT_PB_Action_HVAC_Extended", "extended HVAC push button action", "", 3},
    {200, 100, "DPT_Heat/Cool_Z", "heat/cool with status", "", 16},
    {201, 100, "DPT_HVACMode_Z", "HVAC mode with status", "", 16},
    {201, 105, "DPT_EnableH/Cstage_Z", "enable heating/cooling stage with status", "", 16},
    {202, 1, "DPT_RelValue_Z", "relative value with status", "%", 16},
    {203, 17, "DPT_PercentU16_Z", "percentage with status", "%", 24},
    {204, 1, "DPT_RelSignedValue_Z", "relative signed value with status", "%", 16},
    {205, 100, "DPT_TempHVACAbs_Z", "temperature with status", "°C", 24},
    {206, 100, "DPT_HVACModeNext", "HVAC mode with time until the next mode", "", 24},
    {207, 600, "DPT_StatusLightingActuator", "lighting actuator status", "", 16},
    {209, 101, "DPT_TempRoomDemAbs", "room temperature demand", "", 24},
    {210, 100, "DPT_TempFlowWaterDemAbs", "flow water temperature demand", "", 32},
    {211, 100, "DPT_EnergyDemWater", "water energy demand", "", 16},
    {212, 101, "DPT_TempRoomSetpSet[3]", "room temperature setpoints (3 modes)", "°C", 48},
    {213, 100, "DPT_TempRoomSetpSet[4]", "room temperature setpoints (4 modes)", "°C", 64},
    {214, 100, "DPT_PowerFlowWaterDemHPM", "heat producer power demand", "", 32},
    {215, 100, "DPT_StatusBOC", "boiler controller status", "", 40},
    {217, 1, "DPT_Version", "version", "", 16},
    {218, 1, "DPT_VolumeLiter_Z", "volume with status", "l", 40},
    {219, 1, "DPT_AlarmInfo", "alarm information", "", 48},
    {220, 100, "DPT_TempHVACAbsNext", "temperature with time until the next value", "", 32},
    {221, 1, "DPT_SerNum", "serial number", "", 48},
    {222, 100, "DPT_TempRoomSetpSetF16[3]", "room temperature setpoints (3 modes, float)", "°C", 48},
    {223, 100, "DPT_EnergyDemAir", "air energy demand", "", 24},
    {224, 100, "DPT_TempSupplyAirSetpSet", "supply air temperature setpoints", "", 48},
    {225, 1, "DPT_ScalingSpeed", "scaling speed", "", 24},
    {229, 1, "DPT_MeteringValue", "metering value", "", 48},
    {230, 1000, "DPT_MBus_Address", "M-Bus address", "", 64},
    {231, 1, "DPT_Locale_ASCII", "locale", "", 32},
    {232, 600, "DPT_Colour_RGB", "RGB colour", "", 24},
    {234, 1, "DPT_LanguageCodeAlpha2_ASCII", "language code", "", 16},
    {235, 1, "DPT_Tariff_ActiveEnergy", "active energy with tariff", "", 48},
    {236, 1, "DPT_Prioritised_Mode_Control", "prioritised mode control", "", 8},
    {237, 600, "DPT_DALI_Control_Gear_Diagnostic", "DALI control gear diagnostic", "", 16},
    {238, 600, "DPT_DALI_Diagnostics", "DALI diagnostics", "", 8},
    {239, 1, "DPT_FlaggedScaling", "flagged scaling", "", 16},
    {240, 800, "DPT_CombinedPosition", "combined height and slats position", "", 24},
    {241, 800, "DPT_StatusSAB", "sunblind actuator status", "", 32},
    {242, 600, "DPT_Colour_xyY", "colour xyY", "", 48},
    {243, 600, "DPT_Colour_Transition_xyY", "colour transition xyY", "", 64},
    {244, 600, "DPT_Converter_Status", "DALI converter status", "", 16},
    {245, 600, "DPT_Converter_Test_Result", "DALI converter test result", "", 48},
    {246, 600, "DPT_Battery_Info", "battery information", "", 16},
    {249, 600, "DPT_Brightness_Colour_Temperature_Transition", "brightness and colour temperature transition", "", 48},
    {250, 600, "DPT_Brightness_Colour_Temperature_Control", "brightness and colour temperature control", "", 24},
    {251, 600, "DPT_Colour_RGBW", "RGBW colour", "", 48},
    {252, 600, "DPT_Relative_Control_RGBW", "relative control RGBW", "", 40},
    {253, 600, "DPT_Relative_Control_xyY", "relative control xyY", "", 32},
    {254, 600, "DPT_Relative_Control_RGB", "relative control RGB", "", 24},
    {255, 1, "DPT_GeographicalLocation", "geographical location", "", 64},
    {275, 100, "DPT_TempRoomSetpSetF16[4]", "room temperature setpoints (4 modes, float)", "°C", 64},
};

TEST(DptCatalogue, HoldsTheFactsOfTheStandard) {
  for (const Fact& row : Facts) {
    const DptSubtype* entry = DptCatalogue::Find(row.mainNumber, row.subNumber);
    ASSERT_NE(entry, nullptr) << row.mainNumber << "." << row.subNumber;
    EXPECT_STREQ(entry->name, row.name);
    EXPECT_STREQ(entry->description, row.description) << row.name;
    EXPECT_STREQ(entry->unit, row.unit) << row.name;
    EXPECT_EQ(entry->bitSize, row.bits) << row.name;
  }
}

TEST(DptCatalogue, FactsCoverEveryMainNumber) {
  std::set<std::uint16_t> inFacts;
  for (const Fact& row : Facts) {
    inFacts.insert(row.mainNumber);
  }
  for (const DptSubtype& entry : DptCatalogue::All()) {
    EXPECT_EQ(inFacts.count(entry.mainNumber), 1u) << "main " << entry.mainNumber;
  }
}

struct Range {
  const char* name;
  double minimum;
  double maximum;
};

const double None = std::nan("");

const Range Ranges[] = {
    {"DPT_Scaling", 0, 100},
    {"DPT_Angle", 0, 360},
    {"DPT_Percent_V8", -128, 127},
    {"DPT_Value_Temp", -273, 670760},
    {"DPT_Value_Temp_F", -459.6, 670760},
    {"DPT_Value_Lux", 0, 670760},
    {"DPT_Percent_V16", -327.68, 327.67},
    {"DPT_Value_4_Ucount", 0, 4294967295.0},
    {"DPT_Value_4_Count", -2147483648.0, 2147483647.0},
    {"DPT_SceneNumber", 0, 63},
    {"DPT_UpDown", 0, 1},
    {"DPT_HVACMode", 0, 4},
    {"DPT_LoadTypeSet", 0, 8},
    {"DPT_RelValue_Z", 0, 255},
    {"DPT_UElCurrentμA_Z", 0, 655.35},
    {"DPT_PowerKW_Z", 0, 65535},
    {"DPT_AtmPressureAbs_Z", 0, 3276.75},
    {"DPT_SunIntensity_Z", 0, 3276.75},
    {"DPT_RelSignedValue_Z", -100, 100},
    {"DPT_TempHVACRel_Z", -273, 655.34},
    {"DPT_Value_Power", None, None},
    {"DPT_DateTime", None, None},
};

bool SameLimit(double actual, double expected) {
  return std::isnan(expected) ? std::isnan(actual) : actual == expected;
}

TEST(DptCatalogue, GivesTheStandardsRanges) {
  for (const Range& row : Ranges) {
    const DptSubtype* entry = DptCatalogue::FindByName(row.name);
    ASSERT_NE(entry, nullptr) << row.name;
    EXPECT_TRUE(SameLimit(entry->minimum, row.minimum)) << row.name << " " << entry->minimum;
    EXPECT_TRUE(SameLimit(entry->maximum, row.maximum)) << row.name << " " << entry->maximum;
  }
}

struct Lookup {
  std::uint16_t mainNumber;
  std::uint16_t subNumber;
  const char* name;  // nullptr: unknown
};

const Lookup Lookups[] = {
    {1, 1, "DPT_Switch"},
    {1, 20, nullptr},
    {1, 1201, "DPT_EnergyDirection"},
    {9, 0, nullptr},
    {9, 12, nullptr},
    {14, 0, "DPT_Value_Acceleration"},
    {20, 102, "DPT_HVACMode"},
    {32, 1, nullptr},
    {0, 0, nullptr},
    {275, 101, "DPT_TempRoomSetpSetShiftF16[4]"},
    {65535, 65535, nullptr},
};

TEST(DptCatalogue, FindsByNumber) {
  for (const Lookup& row : Lookups) {
    const DptSubtype* entry = DptCatalogue::Find(row.mainNumber, row.subNumber);
    if (row.name == nullptr) {
      EXPECT_EQ(entry, nullptr) << row.mainNumber << "." << row.subNumber;
    } else {
      ASSERT_NE(entry, nullptr) << row.mainNumber << "." << row.subNumber;
      EXPECT_STREQ(entry->name, row.name);
    }
  }
}

const Lookup NameLookups[] = {
    {9, 1, "DPT_Value_Temp"},  {9, 1, "dpt_value_temp"},  {9, 1, "DPT_VALUE_TEMP"},
    {9, 3, "DPT_Value_Tempa"}, {1, 100, "dpt_heat/cool"}, {20, 102, "Dpt_HvacMode"},
    {0, 0, "DPT_Value_Tmp"},   {0, 0, "DPT_Value_Temp "}, {0, 0, ""},
    {0, 0, "9.001"},           {0, 0, "Value_Temp"},
};

TEST(DptCatalogue, FindsByNameIgnoringCase) {
  for (const Lookup& row : NameLookups) {
    const DptSubtype* entry = DptCatalogue::FindByName(row.name);
    if (row.mainNumber == 0) {
      EXPECT_EQ(entry, nullptr) << row.name;
    } else {
      ASSERT_NE(entry, nullptr) << row.name;
      EXPECT_EQ(entry->mainNumber, row.mainNumber) << row.name;
      EXPECT_EQ(entry->subNumber, row.subNumber) << row.name;
    }
  }
}

TEST(DptCatalogue, NamesAreUnique) {
  for (const DptSubtype& entry : DptCatalogue::All()) {
    EXPECT_EQ(DptCatalogue::FindByName(entry.name), &entry) << entry.name;
  }
}

TEST(DptCatalogue, IteratesInStrictlyIncreasingOrder) {
  const DptSubtype* previous = nullptr;
  std::size_t count = 0;
  for (const DptSubtype& entry : DptCatalogue::All()) {
    if (previous != nullptr) {
      const bool increasing = previous->mainNumber < entry.mainNumber ||
                              (previous->mainNumber == entry.mainNumber && previous->subNumber < entry.subNumber);
      EXPECT_TRUE(increasing) << previous->name << " before " << entry.name;
    }
    previous = &entry;
    ++count;
  }
  EXPECT_EQ(count, DptCatalogue::Size());
  EXPECT_EQ(DptCatalogue::end() - DptCatalogue::begin(), static_cast<std::ptrdiff_t>(DptCatalogue::Size()));
}

TEST(DptCatalogue, HoldsAtLeastThreeHundredSubtypes) {
  EXPECT_GE(DptCatalogue::Size(), 300u);
}

TEST(DptCatalogue, EveryEntryIsComplete) {
  for (const DptSubtype& entry : DptCatalogue::All()) {
    EXPECT_EQ(std::strncmp(entry.name, "DPT_", 4), 0) << entry.name;
    EXPECT_GT(std::strlen(entry.description), 0u) << entry.name;
    EXPECT_NE(entry.unit, nullptr) << entry.name;
    EXPECT_EQ(entry.valueNames == nullptr, entry.valueNameCount == 0) << entry.name;
    EXPECT_EQ(std::isnan(entry.minimum), std::isnan(entry.maximum)) << entry.name;
    if (!std::isnan(entry.minimum)) {
      EXPECT_LT(entry.minimum, entry.maximum) << entry.name;
    }
  }
}

TEST(DptCatalogue, FindAllocatesNothing) {
  for (const Lookup& row : Lookups) {
    EXPECT_EQ(CountedAllocations::During([&row] { (void)DptCatalogue::Find(row.mainNumber, row.subNumber); }), 0);
  }
  for (const Lookup& row : NameLookups) {
    EXPECT_EQ(CountedAllocations::During([&row] { (void)DptCatalogue::FindByName(row.name); }), 0) << row.name;
  }
}

}  // namespace
