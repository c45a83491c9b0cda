#include "content/calendar_look.h"

#include <gtest/gtest.h>

#include <set>

namespace orbisol {
namespace {

TEST(CalendarLookTest, EveryColorHasItsOwnCaption) {
  std::set<std::u16string_view> captions = {u""};
  for (const ColorInfo& info : ColorTable()) captions.insert(info.text);
  EXPECT_EQ(captions.size(), 1 + 15u);
  EXPECT_EQ(ColorTable()[kVacationBack].text, u"Couleur d'arrière-plan du jour de vacances");
}

}  // namespace
}  // namespace orbisol
