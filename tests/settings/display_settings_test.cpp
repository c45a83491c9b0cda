#include "settings/display_settings.h"

#include <algorithm>
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "settings/screen_fit.h"

namespace orbisol {
namespace {

const std::u16string kName = u"Été";

TEST(DisplaySettingsTest, EveryColorHasItsOwnNameAndCaption) {
  std::set<std::string_view> names;
  std::set<std::u16string_view> captions;
  for (const ColorInfo& info : ColorTable()) {
    names.insert(info.name);
    captions.insert(info.text);
  }
  EXPECT_EQ(names.size(), 15u);
  EXPECT_EQ(captions.size(), 15u);
  EXPECT_EQ(captions.count(u""), 0u);
  EXPECT_EQ(ColorTable()[kHeaderTextColor].text, u"Couleur du texte d'en-tête");
  EXPECT_EQ(ColorTable()[kHolidaysBgColor].text, u"Couleur d'arrière-plan du jour de vacances");
  EXPECT_EQ(ColorTable()[kColorWeekNumber].text, u"Couleur du numéro de semaine");
}

TEST(DisplaySettingsTest, AFreshRecordAndAResetHaveTheSameColors) {
  const DisplaySettings fresh;
  EXPECT_EQ(fresh.ColorAt(kHolidayFontColor), 0x0000FFu) << "red stands in the low byte";
  EXPECT_EQ(fresh.ColorAt(kEventFgColor), 0x4000C0u);
  EXPECT_EQ(fresh.ColorAt(kHolidaysFontColor), 0xFF8000u);
  EXPECT_EQ(fresh.ColorAt(kHolidaysBgColor), 0xC0C0C0u);
  EXPECT_EQ(fresh.ColorAt(kStandardBgColor), kWindowColor);
  EXPECT_EQ(fresh.ColorAt(kColorWeekNumber), fresh.ColorAt(kGrayTextColor));
  EXPECT_EQ(fresh.mainLayout.rect, (Rect{50, 50, 900, 450}));

  DisplaySettings edited;
  edited.changed = true;
  edited.fontWeight = 700;
  edited.fontName.Set(kName);
  edited.backgroundImage = false;
  edited.backgroundImagePath.Set(kName);
  edited.colors.fill(0x123456);
  edited.ResetToDefaults();
  EXPECT_EQ(edited, fresh);
}

TEST(DisplaySettingsTest, AResetKeepsWhatIsNotTheCalendars) {
  DisplaySettings edited;
  edited.mainLayout.rect = {1, 2, 3, 4};
  edited.printLayout.maximized = 1;
  edited.showWeekNumber = true;
  edited.circleTheDay = true;
  edited.circleWidth = 3;
  edited.collapseCells = false;
  edited.fullCellBackground = true;
  edited.backgroundAlpha = 16;
  edited.grid = false;
  edited.tipsForEventsOnly = false;
  edited.calendarName.Set(kName);
  edited.magnetMouse = true;
  edited.calendarPath = u"/tmp/Été.xml";
  const DisplaySettings kept = edited;
  edited.ResetToDefaults();
  EXPECT_EQ(edited, kept);
}

TEST(DisplaySettingsTest, StoredNumbersOutOfRangeAreClampedWhereTheyAreUsed) {
  DisplaySettings settings;
  const struct {
    int stored, width, alpha;
  } kRows[] = {{-5, 1, 0}, {0, 1, 0}, {2, 2, 2}, {9, 3, 9}, {1000, 3, 255}};
  for (const auto& row : kRows) {
    settings.circleWidth = settings.backgroundAlpha = row.stored;
    EXPECT_EQ(settings.CircleWidth(), row.width);
    EXPECT_EQ(settings.BackgroundAlpha(), row.alpha);
    EXPECT_EQ(settings.circleWidth, row.stored);
  }
}

const WindowLayout kLayout{{-2, 258, 65536, 2147483647}, 1, 0, 7, 255, -1};
const std::vector<std::uint8_t> kLayoutBytes = {0xFE, 0xFF, 0xFF, 0xFF, 2, 1, 0, 0,   0,    0,    1,    0,
                                                0xFF, 0xFF, 0xFF, 0x7F, 1, 0, 7, 255, 0xFF, 0xFF, 0xFF, 0xFF};

TEST(WindowLayoutTest, IsStoredLittleEndian) {
  const auto bytes = LayoutToBytes(kLayout);
  EXPECT_EQ(std::vector<std::uint8_t>(bytes.begin(), bytes.end()), kLayoutBytes);
}

TEST(WindowLayoutTest, FewerBytesFillTheFieldsTheyHold) {
  for (std::size_t size = 0; size <= 30; ++size) {
    SCOPED_TRACE(size);
    std::vector<std::uint8_t> bytes = kLayoutBytes;
    bytes.resize(size, 0x55);
    WindowLayout layout;
    LayoutFromBytes(bytes, layout);
    WindowLayout expected;
    if (size >= 4) expected.rect.left = kLayout.rect.left;
    if (size >= 8) expected.rect.top = kLayout.rect.top;
    if (size >= 12) expected.rect.right = kLayout.rect.right;
    if (size >= 16) expected.rect.bottom = kLayout.rect.bottom;
    if (size >= 17) expected.maximized = kLayout.maximized;
    if (size >= 18) expected.statusBarShown = kLayout.statusBarShown;
    if (size >= 19) expected.reserved = kLayout.reserved;
    if (size >= 20) expected.rightPaneShown = kLayout.rightPaneShown;
    if (size >= 24) expected.rightPaneWidth = kLayout.rightPaneWidth;
    EXPECT_EQ(layout, expected);
  }
}

TEST(ScreenFitTest, RectanglesComeOntoTheScreen) {
  constexpr Rect kFullHd = {0, 0, 1920, 1080};
  constexpr Rect kTwoScreens = {-1280, -200, 1920, 1080};
  constexpr int kMost = 2147483647;
  constexpr int kLeast = -2147483647 - 1;
  const struct {
    const char* what;
    Rect stored, screen, fitted;
  } kRows[] = {
      {"inside", {50, 50, 900, 450}, kFullHd, {50, 50, 900, 450}},
      {"too large", {50, 50, 5050, 3050}, kFullHd, {0, 0, 1920, 1080}},
      {"left of it", {-100, 10, 700, 500}, kFullHd, {0, 10, 800, 500}},
      {"right of it", {1800, 10, 2600, 500}, kFullHd, {1120, 10, 1920, 500}},
      {"above", {10, -30, 700, 500}, kFullHd, {10, 0, 700, 530}},
      {"below", {10, 900, 700, 1390}, kFullHd, {10, 590, 700, 1080}},
      {"on the left of two screens", {-1200, -100, -400, 400}, kTwoScreens, {-1200, -100, -400, 400}},
      {"left of both", {-2000, -300, -1200, 200}, kTwoScreens, {-1280, -200, -480, 300}},
      {"as far away as can be", {kMost - 10, kMost - 10, kMost, kMost}, kFullHd, {1910, 1070, 1920, 1080}},
      {"as large as can be", {kLeast, kLeast, kMost, kMost}, kFullHd, kFullHd},
      {"inside out", {100, 100, 50, 60}, kFullHd, {100, 100, 50, 60}},
  };
  for (const auto& row : kRows) {
    SCOPED_TRACE(row.what);
    EXPECT_EQ(FitRectToScreen(row.stored, row.screen), row.fitted);
  }
}

}  // namespace
}  // namespace orbisol
