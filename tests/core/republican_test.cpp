#include "core/republican.h"

#include <gtest/gtest.h>

#include "tests/support/rules.h"

namespace orbisol {
namespace {

// Dates that histories give, and the concordance of the Service des archives de France.
TEST(RepublicanTest, DatesOfTheRepublicConvertBothWaysAndAreWritten) {
  constexpr std::tuple<PackedDate, int, int, int, const char16_t*> kRows[] = {
      {17920922, 1, 1, 1, u"Primidi 1 vendémiaire an 1\n (an I)"},
      {17950922, 3, 13, 6, u"Jour de la Révolution an 3\n (an III)"},
      {17991109, 8, 2, 18, u"Octidi 18 brumaire an 8\n (an VIII)"},
      {20240101, 232, 4, 11, u"Primidi 11 nivose an 232\n (an CCXXXII)"},
  };
  for (const auto& [date, year, month, day, text] : kRows) {
    EXPECT_EQ(FromRepublican(year, month, day).Packed(), date);
    EXPECT_EQ(ToRepublican(Date(date)), (RepublicanDate{year, month - 1, day - 1}));
    EXPECT_EQ(RepublicanText(Date(date)), text);
  }
  EXPECT_EQ(RepublicanText(Date(17920921)), u"");
  EXPECT_EQ(RepublicanMonthName(0) + RepublicanMonthName(12) + RepublicanMonthName(13),
            u"vendémiaireComplémentaires");
}

TEST(RepublicanTest, EveryEntryIsTheDayAfterTheOneBeforeAndReadsBack) {
  int expected = Date(kRepublicanEpoch).DayNumber();
  std::vector<int> readOtherwise;
  for (int year = 1; year <= kLastRepublicanYear; ++year) {
    for (int month = 1; month <= 13; ++month) {
      for (int day = 1; day <= (month == 13 ? ComplementaryDays(year) : 30); ++day, ++expected) {
        const Date date = FromRepublican(year, month, day);
        ASSERT_TRUE(date.DayNumber() == expected) << year << " " << month << " " << day;
        if (ToRepublican(date) != RepublicanDate{year, month - 1, day - 1}) readOtherwise.push_back(year);
      }
    }
  }
  // On purpose: the sixth complementary day of these years reads as 1 vendémiaire of the next.
  EXPECT_EQ(readOtherwise, (std::vector{399, 799, 1199, 1599, 1999}));
  EXPECT_EQ(ToRepublican(Date(21910922)), (RepublicanDate{400, 0, 0}));
  EXPECT_EQ(FromRepublican(400, 1, 1).Packed(), 21910923);
  EXPECT_EQ(FromRepublican(399, 13, 6).Packed(), 21910922);
}

TEST(RepublicanTest, EntriesAreLimitedToWhatExists) {
  const ScopedRules inForce(RulesWith(19180214));  // the epoch is a date of the calendar in force
  EXPECT_EQ(FromRepublican(-5, 0, 0).Packed(), 17920922);
  EXPECT_EQ(FromRepublican(3, 14, 30).Packed(), FromRepublican(3, 13, 6).Packed());
  EXPECT_EQ(FromRepublican(1, 2, 31).Packed(), FromRepublican(1, 2, 30).Packed());
  EXPECT_EQ(FromRepublican(2301, 1, 1).Packed(), FromRepublican(2300, 1, 1).Packed());
}

TEST(RepublicanTest, RomanNumeralsAreWrittenUpTo4998) {
  EXPECT_EQ(RomanNumeral(1888), u"MDCCCLXXXVIII");
  EXPECT_EQ(RomanNumeral(1999), u"MCMXCIX");
  EXPECT_EQ(RomanNumeral(2444), u"MMCDXLIV");
  EXPECT_EQ(RomanNumeral(4998), u"MMMMCMXCVIII");
  EXPECT_EQ(RomanNumeral(4999) + RomanNumeral(0) + RomanNumeral(-1), u"");
}

}  // namespace
}  // namespace orbisol
