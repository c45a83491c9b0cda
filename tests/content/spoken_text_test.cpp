#include "content/spoken_text.h"

#include <gtest/gtest.h>

#include "core/text.h"
#include "tests/support/fakes.h"

namespace orbisol {
namespace {

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
      {20261201, ""},
      {15821015, ""},
      {-80229, ""},  // On purpose: it exists, though it has the day number of 1 March.
  };
  for (const auto& row : kDates) {
    const ScopedRules rules(RulesWith(row.reform));
    EXPECT_EQ(ToUtf8(MissingDateText(Date(row.date))), row.text) << row.date;
  }
}

TEST(SpokenTextTest, ARangeSaysItsEndsAndItsLength) {
  const ScopedRules rules(RulesWith(kRomanReform));
  EXPECT_EQ(ToUtf8(RangeText(Date(15821001), Date(15821015))),
            "du 1er octobre 1582 au 15 octobre 1582, 5 jours");
  EXPECT_EQ(ToUtf8(RangeText(Date(20240513), Date(20240513))), "le 13 mai 2024, 1 jour");
}

TEST(SpokenTextTest, ADaySaysItsPlaceInTheYear) {
  const ScopedRules rules(RulesWith(kRomanReform));
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
