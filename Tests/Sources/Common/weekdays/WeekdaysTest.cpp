#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <string_view>
#include <type_traits>

#include "Weekdays.h"

namespace {

using ULO::Weekdays;
using Days = Weekdays::Days;

constexpr Days Mo = Weekdays::Monday;
constexpr Days Tu = Weekdays::Tuesday;
constexpr Days We = Weekdays::Wednesday;
constexpr Days Th = Weekdays::Thursday;
constexpr Days Fr = Weekdays::Friday;
constexpr Days Sa = Weekdays::Saturday;
constexpr Days Su = Weekdays::Sunday;
constexpr Days NoDay = Weekdays::NoDay;

// A Days value that is a combination or no enumerator at all.
constexpr Days D(unsigned int bits) {
  return static_cast<Days>(bits);
}

TEST(Weekdays, DayBitsAreMondayFirst) {
  struct Row {
    Days day;
    unsigned int bits;
  };
  const Row rows[] = {{Mo, 1}, {Tu, 2}, {We, 4}, {Th, 8}, {Fr, 16}, {Sa, 32}, {Su, 64}, {NoDay, 1024}};
  for (const Row& row : rows) {
    EXPECT_EQ(static_cast<unsigned int>(row.day), row.bits);
  }
  EXPECT_EQ(Weekdays::FORMAT_LETTERS, 0);
  EXPECT_EQ(Weekdays::FORMAT_FLAGS, 1);
}

TEST(Weekdays, ConstructionAndAssignmentStoreTheMaskUnchanged) {
  const unsigned int rows[] = {0u, 1u, 5u, 127u, 1024u, 0x12345u, 0xFFFFFFFFu};
  for (const unsigned int bits : rows) {
    SCOPED_TRACE(bits);
    EXPECT_EQ(static_cast<unsigned int>(Weekdays(bits)), bits);
    EXPECT_EQ(static_cast<unsigned int>(Weekdays(D(bits))), bits);
    Weekdays fromNumber(Su);
    fromNumber = bits;
    EXPECT_EQ(static_cast<unsigned int>(fromNumber), bits);
    Weekdays fromDays(Su);
    fromDays = D(bits);
    EXPECT_EQ(static_cast<unsigned int>(fromDays), bits);
  }
}

TEST(Weekdays, AssignCalendarWeekday) {
  struct Row {
    unsigned int before;
    unsigned int weekday;  // date::weekday, Sunday = 0
    unsigned int after;
  };
  const Row rows[] = {
      {0, 0, 64},     // Sunday
      {0, 1, 1},      // Monday
      {0, 2, 2},      // Tuesday
      {0, 3, 4},      // Wednesday
      {0, 4, 8},      // Thursday
      {0, 5, 16},     // Friday
      {0, 6, 32},     // Saturday
      {127, 3, 4},    // replaces, does not add
      {1024, 6, 32},  // replaces NoDay as well
      // The calendar library reads 7 as Sunday (ISO numbering), so 7 cannot
      // reach the set as an invalid day; 8 and above can, and change nothing.
      {0, 7, 64},
      {5, 8, 5},
      {0, 8, 0},
      {1024, 255, 1024},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.weekday);
    Weekdays days(row.before);
    days = date::weekday{row.weekday};
    EXPECT_EQ(static_cast<unsigned int>(days), row.after);
  }
}

TEST(Weekdays, OrAddsDays) {
  struct Row {
    unsigned int before;
    Days day;
    unsigned int after;
  };
  const Row rows[] = {
      {0, Mo, 1}, {1, Mo, 1}, {1, Su, 65}, {65, We, 69}, {0, D(0), 0}, {3, NoDay, 1027},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.before);
    const Weekdays original(row.before);
    EXPECT_EQ(static_cast<unsigned int>(original | row.day), row.after);
    EXPECT_EQ(static_cast<unsigned int>(original), row.before);  // operator| leaves its operand alone
    Weekdays inPlace(row.before);
    inPlace |= row.day;
    EXPECT_EQ(static_cast<unsigned int>(inPlace), row.after);
  }
}

TEST(Weekdays, FreeOrBuildsASet) {
  struct Row {
    Days first;
    Days second;
    unsigned int bits;
  };
  const Row rows[] = {{Mo, Fr, 17}, {Mo, Mo, 1}, {Sa, Su, 96}, {D(0), D(0), 0}, {NoDay, Tu, 1026}};
  for (const Row& row : rows) {
    const Weekdays days = row.first | row.second;
    EXPECT_EQ(static_cast<unsigned int>(days), row.bits);
  }
}

TEST(Weekdays, EqualityWithDaysIsContainment) {
  struct Row {
    unsigned int mask;
    Days days;
    bool contained;
  };
  const Row rows[] = {
      {1, D(3), false},    // Monday|Tuesday on Monday alone
      {1, D(0), true},     // the empty argument is always contained
      {0, D(0), true},     // even in the empty set
      {1, Mo, true},       // equal
      {17, Mo, true},      // a strict subset
      {17, D(17), true},   // equal combination
      {17, D(19), false},  // one day missing
      {0, Mo, false},      // the empty set contains no day
      {1024, NoDay, true}, {127, NoDay, false},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.mask);
    const Weekdays days(row.mask);
    EXPECT_EQ(days == row.days, row.contained);
    EXPECT_EQ(days != row.days, !row.contained);
  }
}

TEST(Weekdays, EqualityWithCalendarWeekday) {
  struct Row {
    unsigned int mask;
    unsigned int weekday;  // date::weekday, Sunday = 0
    bool equal;
  };
  const Row rows[] = {
      {64, 0, true},       // Sunday
      {1, 1, true},        // Monday
      {32, 6, true},       // Saturday
      {127, 4, true},      // contained in a bigger set
      {1, 2, false},       // Tuesday not in Monday
      {0, 0, false},       // empty set
      {1025, 1, false},    // a set holding NoDay is never equal
      {1088, 0, false},    // NoDay|Sunday
      {127, 8, false},     // not a calendar day
      {1024, 255, false},  // not a calendar day, NoDay set
      {64, 7, true},       // the calendar library reads 7 as Sunday
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.mask);
    const Weekdays days(row.mask);
    EXPECT_EQ(days == date::weekday{row.weekday}, row.equal);
    EXPECT_EQ(days != date::weekday{row.weekday}, !row.equal);
  }
}

TEST(Weekdays, NumberConversions) {
  struct Row {
    unsigned int mask;
    bool nonEmpty;
    unsigned short low16;
  };
  const Row rows[] = {
      {0, false, 0}, {1, true, 1}, {127, true, 127}, {1024, true, 1024}, {0x10000, true, 0}, {0x12345, true, 0x2345},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.mask);
    const Weekdays days(row.mask);
    EXPECT_EQ(static_cast<bool>(days), row.nonEmpty);
    EXPECT_EQ(static_cast<unsigned int>(days), row.mask);
    EXPECT_EQ(static_cast<unsigned short>(days), row.low16);
  }
}

TEST(Weekdays, SetAddsOrRemoves) {
  struct Row {
    unsigned int before;
    Days days;
    bool on;
    unsigned int after;
  };
  const Row rows[] = {
      {0, Mo, true, 1},    {1, Mo, true, 1},        {1, Mo, false, 0},    {17, Mo, false, 16},
      {16, Mo, false, 16}, {127, D(96), false, 31}, {0, D(96), true, 96}, {1025, NoDay, false, 1},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.before);
    Weekdays days(row.before);
    days.Set(row.days, row.on);
    EXPECT_EQ(static_cast<unsigned int>(days), row.after);
  }
}

TEST(Weekdays, Format) {
  struct Row {
    unsigned int mask;
    Weekdays::FORMAT format;
    std::string text;
  };
  const Row rows[] = {
      {1 | 4 | 64, Weekdays::FORMAT_LETTERS, "M-W---S"},
      {1 | 4 | 64, Weekdays::FORMAT_FLAGS, "1-1---1"},
      {1 | 4 | 64, static_cast<Weekdays::FORMAT>(7), "1-1---1"},  // any format but letters writes flags
      {0, Weekdays::FORMAT_LETTERS, "-------"},
      {0, Weekdays::FORMAT_FLAGS, "-------"},
      {127, Weekdays::FORMAT_LETTERS, "MTWTFSS"},
      {127, Weekdays::FORMAT_FLAGS, "1111111"},
      {2 | 8, Weekdays::FORMAT_LETTERS, "-T-T---"},
      {16 | 32, Weekdays::FORMAT_LETTERS, "----FS-"},
      {1024, Weekdays::FORMAT_LETTERS, "-------"},  // only the seven days are written
      {1024 | 64, Weekdays::FORMAT_FLAGS, "------1"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.mask);
    EXPECT_EQ(Weekdays(row.mask).Format(row.format), row.text);
  }
}

TEST(Weekdays, GetFirst) {
  struct Row {
    unsigned int mask;
    Days from;
    std::optional<Days> first;
  };
  const Row rows[] = {
      {17, We, Fr},                // Monday|Friday from Wednesday
      {17, Sa, std::nullopt},      // Monday|Friday from Saturday
      {17, Mo, Mo},                //
      {17, D(0), Mo},              // from nothing: the first day of the set
      {17, Fr, Fr},                // from is inclusive
      {17, D(3), Fr},              // a combination compares as a number
      {64, Su, Su},                //
      {0, Mo, std::nullopt},       // empty set
      {127, NoDay, std::nullopt},  // nothing is at or above NoDay
      {1024, D(0), std::nullopt},  // NoDay is not a day of the table
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.mask);
    EXPECT_EQ(Weekdays(row.mask).GetFirst(row.from), row.first);
  }
}

TEST(Weekdays, GetNext) {
  static_assert(noexcept(std::declval<const Weekdays&>().GetNext(Weekdays::Monday)), "GetNext never throws");
  struct Row {
    unsigned int mask;
    Days day;
    Days next;
  };
  const Row rows[] = {
      {17, Su, Mo},         // Monday|Friday: Monday follows Sunday
      {17, Mo, Fr},         //
      {17, Fr, Mo},         // wraps round
      {17, Tu, Fr},         // day need not be in the set
      {1, Mo, NoDay},       // the day itself is never returned
      {0, We, NoDay},       // empty set
      {127, Sa, Su},        //
      {127, Su, Mo},        //
      {127, D(0), NoDay},   // 0 does not move
      {127, NoDay, NoDay},  // NoDay does not move
      {127, D(96), NoDay},  // above 64 does not move
      {6, D(3), D(6)},      // a combination is doubled, and containment decides
      {96, D(3), D(96)},    // 3, 6, 12, 24, 48, 96
      {1, D(3), NoDay},     // stops at 96, which cannot move on
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.mask);
    EXPECT_EQ(Weekdays(row.mask).GetNext(row.day), row.next);
  }
}

TEST(Weekdays, GetWeekdayFromString) {
  struct Row {
    std::string_view text;
    unsigned int mask;
  };
  const Row rows[] = {
      {"M-W---S", 1 | 4 | 64},
      {"1-1---1", 1 | 4 | 64},  // the same set as the letters
      {"x", 1},                 // one character: Monday
      {"", 1024},               // empty text: NoDay
      {"-------", 1024},        // no day: NoDay
      {"MTWTFSS", 127},
      {"------S", 64},
      {"-------MTWTFSS", 1024},  // characters after the seventh are ignored
      {"M------SSSS", 1},
      {"--", 1024},
      {"0000000", 127},  // every character but '-' counts
      {"  \t", 7},       // even blanks
      {"-T", 2},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(std::string(row.text));
    EXPECT_EQ(static_cast<unsigned int>(Weekdays::GetWeekdayFromString(row.text)), row.mask);
  }
}

TEST(Weekdays, GetWeekdayFromStringStopsAtTheGivenLength) {
  const char text[] = "M-W---SMTWTFSS";
  EXPECT_EQ(static_cast<unsigned int>(Weekdays::GetWeekdayFromString(std::string_view(text, 3))), 1u | 4u);
}

TEST(Weekdays, GetMonday1ToSunday7FromWeekday) {
  struct Row {
    unsigned int day;
    unsigned int number;
  };
  const Row rows[] = {
      {1, 1},    {2, 2},   {4, 3}, {8, 4},          {16, 5},  {32, 6},
      {64, 7},   {0, 0},   {3, 0}, {17, 0},         {127, 0},  // combinations
      {1024, 0}, {128, 0}, {5, 0}, {0xFFFFFFFF, 0},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.day);
    EXPECT_EQ(Weekdays::GetMonday1ToSunday7FromWeekday(D(row.day)), row.number);
    EXPECT_EQ(Weekdays::GetMonday1ToSunday7FromWeekday(row.day), row.number);
  }
}

TEST(Weekdays, GetWeekdayFromMonday1ToSunday7) {
  struct Row {
    unsigned char number;
    unsigned int day;
  };
  const Row rows[] = {
      {0, 0}, {1, 1}, {2, 2}, {3, 4}, {4, 8}, {5, 16}, {6, 32}, {7, 64}, {8, 0}, {255, 0},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(static_cast<int>(row.number));
    EXPECT_EQ(static_cast<unsigned int>(Weekdays::GetWeekdayFromMonday1ToSunday7(row.number)), row.day);
  }
}

TEST(Weekdays, ToWeekday) {
  struct Row {
    unsigned int day;
    unsigned int weekday;  // date::weekday, Sunday = 0
  };
  const Row rows[] = {
      {1, 1},  {2, 2}, {4, 3}, {8, 4}, {16, 5}, {32, 6}, {64, 0}, {1024, 0},  // NoDay: Sunday
      {0, 0},                                                                 // nothing: Sunday
      {3, 0},                                                                 // a combination: Sunday
      {96, 0},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.day);
    EXPECT_EQ(ULO::toWeekday(D(row.day)).c_encoding(), row.weekday);
  }
}

TEST(Weekdays, FromWeekday) {
  struct Row {
    unsigned int weekday;  // date::weekday, Sunday = 0
    Days day;
  };
  const Row rows[] = {
      {0, Su},    {1, Mo},    {2, Tu},      {3, We},
      {4, Th},    {5, Fr},    {6, Sa},      {7, Su},  // the calendar library reads 7 as Sunday
      {8, NoDay}, {9, NoDay}, {255, NoDay},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.weekday);
    EXPECT_EQ(ULO::fromWeekday(date::weekday{row.weekday}), row.day);
  }
}

TEST(Weekdays, PrefixIncrement) {
  struct Row {
    unsigned int before;
    unsigned int after;
  };
  const Row rows[] = {
      {1, 2},       {2, 4}, {4, 8}, {8, 16}, {16, 32}, {32, 64}, {64, 1},  // Sunday wraps to Monday
      {3, 6},                                                              // 1 to 63 are doubled, combinations too
      {63, 126},                                                           //
      {0, 0},                                                              // stays
      {65, 65},                                                            // above 64 stays
      {96, 96},                                                            //
      {1024, 1024},                                                        // NoDay stays
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.before);
    Days day = D(row.before);
    Days& result = ++day;
    EXPECT_EQ(&result, &day);
    EXPECT_EQ(static_cast<unsigned int>(day), row.after);
  }
}

}  // namespace
