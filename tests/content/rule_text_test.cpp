#include "content/rule_text.h"

#include <gtest/gtest.h>

#include "content/spoken_text.h"
#include "tests/content/rule_builder.h"

namespace orbisol {
namespace {

TEST(RuleTextTest, EveryKindHasItsWords) {
  const std::tuple<DayEvent, const char*> kRows[] = {
      {EveryYear(1, 1, u"x"), "le 1er janvier"},
      {Rule(kFixedDate, {.month = 7, .day = 14, .from = 18800101}), "le 14 juillet, depuis 1880"},
      {Rule(kRomanEaster, {.day = 0}), "le jour de Pâques"},
      {Rule(kRomanEaster, {.day = 1}), "le lendemain de Pâques"},
      {Rule(kRomanEaster, {.day = -2}), "2 jours avant Pâques"},
      {Rule(kOrthodoxEaster, {.day = -1}), "la veille de la Pâque orthodoxe"},
      {Rule(kNthWeekday, {.month = 11, .weekday = 4, .weeknum = 4, .from = 19410101}),
       "le 4e jeudi de novembre, depuis 1941"},
      {Rule(kNthWeekday, {.month = 10, .weekday = 1, .weeknum = 1}), "le 1er lundi d'octobre"},
      {Rule(kNthWeekday, {.month = 5, .weekday = 7, .weeknum = 5}), "le dernier dimanche de mai"},
      {Rule(kWeekdayBefore, {.month = 11, .day = 22, .weekday = 3, .weeknum = 1}),
       "le dernier mercredi avant le 22 novembre inclus"},
      {Rule(kWeekdayAfter, {.month = 6, .day = 20, .weekday = 6, .weeknum = 1}),
       "le premier samedi à partir du 20 juin"},
      {Rule(kBankHoliday, {.month = 12, .day = 25}),
       "le 25 décembre, ou le lundi suivant s'il tombe un week-end"},
      {Rule(kExceptSunday, {.month = 5, .day = 1, .to = 19681231}),
       "le 1er mai, ou le lendemain s'il tombe un dimanche, jusqu'en 1968"},
      {Rule(kFixedDate, {.month = 0, .day = 99}), "aucun jour"},
      {Rule(kFixedDate, {.month = 3, .day = 15, .from = 0, .to = 0}), "le 15 mars, jamais valable"},
      {Rule(kNthWeekday, {.month = 3, .weekday = 9, .weeknum = -1}), "aucun jour"},
      {Rule(DayEventType{8}, {}), "aucun jour"},
  };
  for (const auto& [rule, words] : kRows) EXPECT_EQ(ToUtf8(RuleText(rule)), words);
}

TEST(RuleTextTest, ValiditiesAreToldByYearsWhereTheyCanBe) {
  const std::tuple<RecordBounds, const char*> kRows[] = {
      {{kAlwaysFrom, kAlwaysTo}, ""},
      {{19410101, 19681231}, "de 1941 à 1968"},
      {{19410714, kAlwaysTo}, "depuis le 14 juillet 1941"},
      {{kAlwaysFrom, 19680301}, "jusqu'au 1er mars 1968"},
      {{19410101, 19680303}, "du 1er janvier 1941 au 3 mars 1968"},
      {{20240501, 20240501}, "le 1er mai 2024 seulement"},
      {{-441231, kAlwaysTo}, "depuis l'an -44"},
      {{kAlwaysFrom, 331231}, "jusqu'en l'an 33"},
      {{-440315, -440301}, "du 1er mars -44 au 15 mars -44"},
      {{-440315, 20240101}, "bornes : 15 mars -44 et 1er janvier 2024"},
  };
  for (const auto& [bounds, words] : kRows) EXPECT_EQ(ToUtf8(ValidityText(bounds)), words);
}

TEST(RuleTextTest, PeriodsLeaveOutWhatBothEndsShare) {
  for (const auto& [from, to, words] : {std::tuple{20240513, 20240522, "du 13 au 22 mai 2024"},
                                        {20240501, 20240502, "du 1er au 2 mai 2024"},
                                        {20240706, 20240901, "du 6 juillet au 1er septembre 2024"},
                                        {20241221, 20250106, "du 21 décembre 2024 au 6 janvier 2025"},
                                        {-440315, -440301, "du 1er au 15 mars -44"}})
    EXPECT_EQ(ToUtf8(PeriodText(Period(from, to))), words);
}

TEST(RuleTextTest, TheDaysOfSomeYearsAreOneSentence) {
  const std::tuple<DayEvent, int, const char*> kRows[] = {
      {Rule(kNthWeekday, {.month = 11, .weekday = 4, .weeknum = 4}), 2024,
       "Tombe le 28 novembre en 2024, le 27 novembre en 2025, le 26 novembre en 2026."},
      {EveryYear(7, 14, u"x"), 2024, "Tombe le 14 juillet en 2024, 2025 et 2026."},
      {EveryYear(2, 29, u"x"), 2024, "Tombe le 29 février en 2024, aucun jour en 2025 et 2026."},
      {EveryYear(2, 29, u"x"), 2025, "Ne tombe aucun jour en 2025, 2026 et 2027."},
      {EveryYear(7, 14, u"x"), 3998, "Tombe le 14 juillet en 3998 et 3999."},
      {Rule(kWeekdayAfter, {.month = 3, .day = 1, .weekday = 1, .weeknum = 1}), -8,
       "Tombe le 29 février et le 1er mars en -8, le 7 mars en -7, le 6 mars en -6."},
  };
  for (const auto& [rule, year, words] : kRows) EXPECT_EQ(ToUtf8(FallsOnText({&rule, 1}, year, 3)), words);
}

TEST(SpokenTextTest, ADateThatDoesNotExistSaysWhichDayItCountsAs) {
  const struct {
    PackedDate date;
    const char* text;
    PackedDate reform = kRomanReform;
  } kDates[] = {
      {20261131, "Le 31 novembre 2026 n'existe pas ; il compte comme le 1er décembre"},
      {20250229, "Le 29 février 2025 n'existe pas ; il compte comme le 1er mars"},
      {15821010, "Le 10 octobre 1582 n'existe pas ; il compte comme le 20 octobre"},
      {17000101, "Le 1er janvier 1700 n'existe pas ; il compte comme le 11 janvier", 17000111},
      {20240229, ""},
      {15821015, ""},
      {-80229, ""},  // On purpose: it exists, though it has the day number of 1 March.
  };
  for (const auto& row : kDates) {
    const ScopedRules rules(RulesWith(row.reform));
    EXPECT_EQ(ToUtf8(MissingDateText(Date(row.date))), row.text) << row.date;
  }
}

TEST(SpokenTextTest, ARangeSaysItsEndsAndItsLength) {
  EXPECT_EQ(ToUtf8(RangeText(Date(15821001), Date(15821015))),
            "du 1er octobre 1582 au 15 octobre 1582, 5 jours");
  EXPECT_EQ(ToUtf8(RangeText(Date(20240513), Date(20240513))), "le 13 mai 2024, 1 jour");
}

TEST(SpokenTextTest, ADaySaysItsPlaceInTheYear) {
  EXPECT_EQ(ToUtf8(DayCountText(Date(20261121))), "325e jour de l'année, il en reste 40");
  EXPECT_EQ(ToUtf8(DayCountText(Date(20260101))), "1er jour de l'année, il en reste 364");
  EXPECT_EQ(ToUtf8(DayCountText(Date(20241231))), "Dernier jour de l'année, le 366e");
  const ScopedRules roussillon(RulesWith(kRomanReform, {.rows = {{15670101, false}, {15650414, false}}}));
  EXPECT_EQ(ToUtf8(DayCountText(Date(15661231))), "262e jour de l'année");
  EXPECT_EQ(ToUtf8(DayCountText(Date(15660414))), "1er jour de l'année");
  EXPECT_EQ(ToUtf8(DayCountText(Date(15660413))), "Dernier jour de l'année, le 365e");
}

}  // namespace
}  // namespace orbisol
