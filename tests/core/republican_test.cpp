#include "core/republican.h"

#include <gtest/gtest.h>

#include "tests/support/rules.h"

namespace orbisol {
namespace {

constexpr CalendarRules kRoman;

// Dates of the Republic as histories give them, and first days of its years: concordance of the Service des
// archives de France.
TEST(RepublicanTest, DatesOfTheRepublicConvertBothWays) {
  const ScopedRules inForce(kRoman);
  constexpr struct {
    const char* what;
    PackedDate date;
    int year, month, day;  // as entered
  } kRows[] = {
      {"Republic", 17920922, 1, 1, 1},
      {"fall of Robespierre, 9 thermidor", 17940727, 2, 11, 9},
      {"fifth complementary day of the year 3", 17950921, 3, 13, 5},
      {"sixth complementary day of the year 3", 17950922, 3, 13, 6},
      {"sixth complementary day of the year 7", 17990922, 7, 13, 6},
      {"18 brumaire", 17991109, 8, 2, 18},
      {"sixth complementary day of the year 11", 18030923, 11, 13, 6},
      {"last day in use", 18051231, 14, 4, 10},
      {"first day after", 18060101, 14, 4, 11},
      {"Commune, 26 floréal", 18710516, 79, 8, 26},
      {"1 January 2024", 20240101, 232, 4, 11},
  };
  for (const auto& row : kRows) {
    SCOPED_TRACE(row.what);
    EXPECT_EQ(FromRepublican(row.year, row.month, row.day).Packed(), row.date);
    EXPECT_EQ(ToRepublican(Date(row.date)), (RepublicanDate{row.year, row.month - 1, row.day - 1}));
  }
}

// 1 vendémiaire an 400, 800 … 2000: there the sixth complementary day before it reads the same.
constexpr PackedDate kReadAsNewYear[] = {21910922, 25910922, 29910922, 33910922, 37910922};

TEST(RepublicanTest, EveryDayConvertsBackButTheListedOnes) {
  const ScopedRules inForce(kRoman);
  std::vector<PackedDate> others;
  for (int n = Date(kRepublicanEpoch).DayNumber(); n <= Date(39991231).DayNumber(); ++n) {
    const Date date = DateOfDayNumber(n);
    const RepublicanDate republican = ToRepublican(date);
    const Date back = FromRepublican(republican.year, republican.monthIndex + 1, republican.dayIndex + 1);
    if (back.DayNumber() != n) {
      EXPECT_EQ(back.DayNumber(), n + 1);
      others.push_back(date.Packed());
    }
  }
  EXPECT_EQ(others, (std::vector(std::begin(kReadAsNewYear), std::end(kReadAsNewYear))));
}

TEST(RepublicanTest, EveryEntryIsTheDayAfterTheOneBefore) {
  const ScopedRules inForce(kRoman);
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
  EXPECT_EQ(readOtherwise, (std::vector{399, 799, 1199, 1599, 1999}));
}

TEST(RepublicanTest, SextileYears) {
  for (const int year : {3, 7, 11, 95, 103, 399, 1999}) EXPECT_EQ(ComplementaryDays(year), 6) << year;
  for (const int year : {1, 2, 4, 12, 99, 100, 199, 400, 2299}) EXPECT_EQ(ComplementaryDays(year), 5) << year;
}

TEST(RepublicanTest, EntriesAreLimitedToWhatExists) {
  const ScopedRules inForce(kRoman);
  EXPECT_EQ(FromRepublican(0, 1, 1).Packed(), 17920922);
  EXPECT_EQ(FromRepublican(-5, 0, 0).Packed(), 17920922);
  EXPECT_EQ(FromRepublican(3, 14, 30).Packed(), 17950922);
  EXPECT_EQ(FromRepublican(1, 2, 31).Packed(), FromRepublican(1, 2, 30).Packed());
  EXPECT_EQ(FromRepublican(2301, 1, 1).Packed(), FromRepublican(2300, 1, 1).Packed());
  EXPECT_EQ(FromRepublican(4, 13, 6).Packed(), FromRepublican(5, 1, 1).Packed());  // a common year has five
}

TEST(RepublicanTest, TheEpochIsADateOfTheCalendarInForce) {
  const ScopedRules inForce(RulesWith(19180214));
  EXPECT_EQ(ToRepublican(Date(17920922)), (RepublicanDate{1, 0, 0}));
  EXPECT_EQ(FromRepublican(1, 1, 1).Packed(), 17920922);
  EXPECT_EQ(RepublicanText(Date(17920921)), u"");
}

// An independent reading: a letter before a greater one is taken off.
int ReadRoman(std::u16string_view text) {
  const auto value = [](char16_t letter) {
    const std::u16string_view letters = u"IVXLCDM";
    constexpr int kValues[] = {1, 5, 10, 50, 100, 500, 1000};
    return kValues[letters.find(letter)];
  };
  int sum = 0;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool less = i + 1 < text.size() && value(text[i]) < value(text[i + 1]);
    sum += less ? -value(text[i]) : value(text[i]);
  }
  return sum;
}

TEST(RepublicanTest, RomanNumeralsReadBackAndRepeatNoLetterFourTimesButM) {
  for (int n = 1; n < 4999; ++n) {
    const std::u16string text = RomanNumeral(n);
    ASSERT_EQ(ReadRoman(text), n);
    for (const char16_t* four :
         {u"IIII", u"XXXX", u"CCCC", u"VV", u"LL", u"DD", u"MMMMM", u"VX", u"LC", u"DM"})
      ASSERT_EQ(text.find(four), std::u16string::npos) << n;
  }
  EXPECT_EQ(RomanNumeral(4998), u"MMMMCMXCVIII");
  for (const int none : {0, -1, 4999, 100000}) EXPECT_EQ(RomanNumeral(none), u"");
}

TEST(RepublicanTest, Texts) {
  const ScopedRules inForce(kRoman);
  constexpr struct {
    PackedDate date;
    const char16_t* text;
  } kRows[] = {
      {17920921, u""},
      {17920922, u"Primidi 1 vendémiaire an 1\n (an I)"},
      {17991109, u"Octidi 18 brumaire an 8\n (an VIII)"},
      {17950921, u"Jour de la Récompense an 3\n (an III)"},
      {17950922, u"Jour de la Révolution an 3\n (an III)"},
      {17950917, u"Jour de la Vertu an 3\n (an III)"},
      {18051231, u"Décadi 10 nivose an 14\n (an XIV)"},
      {18060101, u"Primidi 11 nivose an 14\n (an XIV)"},
      {20240101, u"Primidi 11 nivose an 232\n (an CCXXXII)"},
      {20240220, u"Primidi 1 ventose an 232\n (an CCXXXII)"},
  };
  for (const auto& row : kRows) EXPECT_EQ(RepublicanText(Date(row.date)), row.text);

  std::u16string months;
  for (int i = -1; i <= kComplementaryMonth + 1; ++i) months += RepublicanMonthName(i) + u" ";
  EXPECT_EQ(
      months,
      u" vendémiaire brumaire frimaire nivose pluviose ventose germinal floréal prairial messidor thermidor "
      u"fructidor Complémentaires  ");
}

}  // namespace
}  // namespace orbisol
