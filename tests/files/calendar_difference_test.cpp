#include "files/calendar_difference.h"

#include <gtest/gtest.h>

#include "tests/support/calendar_builder.h"

namespace orbisol {
namespace {

std::string Lines(const CalendarFile& from, const CalendarFile& to) {
  std::u16string all;
  for (const std::u16string& line : DifferenceLines(DifferenceOf(from, to))) all += line + u"\n";
  return ToUtf8(all);
}

TEST(CalendarDifferenceTest, EachChangeIsALineAndNothingElseIs) {
  const CalendarFile calendar = CalendarWith(u"A");
  CalendarFile other = calendar;
  EXPECT_EQ(Lines(calendar, other), "Aucune différence avec le calendrier actuel.\n");

  other.content.dayEvents.push_back(calendar.content.dayEvents[0]);
  EXPECT_EQ(Lines(calendar, other), "Revient\u00A0: jour férié «\u00A0A\u00A0», le 1er janvier\n")
      << "it is there twice";
  EXPECT_EQ(Lines(other, calendar), "Disparaît\u00A0: jour férié «\u00A0A\u00A0», le 1er janvier\n");
  other.content.dayEvents[1].name.Set(u"B");
  CalendarFile reversed = other;
  std::swap(reversed.content.dayEvents[0], reversed.content.dayEvents[1]);
  EXPECT_EQ(Lines(other, reversed), "L'ordre des événements et des vacances change.\n");

  other = calendar;
  other.look.colors[0] ^= 1;
  other.rules.proleptic = true;
  other.info = u"x";
  EXPECT_EQ(Lines(calendar, other),
            "L'apparence change\u00A0: couleurs, police ou image.\n"
            "Les règles du calendrier changent\u00A0: réforme, années civiles ou semaines.\n"
            "La description du calendrier change.\n");

  other = calendar;
  other.content.dayEvents[0].ymdFrom = 19410101;
  other.content.vacations.push_back({20260704, 20260831, NameText()});
  EXPECT_EQ(Lines(calendar, other),
            "Revient\u00A0: jour férié «\u00A0A\u00A0», le 1er janvier, depuis 1941\n"
            "Revient\u00A0: vacances du 4 juillet au 31 août 2026\n"
            "Disparaît\u00A0: jour férié «\u00A0A\u00A0», le 1er janvier\n");
}

}  // namespace
}  // namespace orbisol
