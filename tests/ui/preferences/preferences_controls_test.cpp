// Every control of the preferences, changed with mouse or keyboard in the open sheet, and looked for in the
// calendar's file, in the key and on the screen of the next start.

#include <QColorDialog>
#include <QFontDialog>

#include "tests/ui/preferences/preferences_fixture.h"

namespace orbisol {
namespace {

using namespace Qt::StringLiterals;

constexpr auto kGeneral = CPrefsPropSheet::kConfigurationPage;
constexpr auto kScreen = CPrefsPropSheet::kDisplayPage;
constexpr auto kColors = CPrefsPropSheet::kColorsPage;

struct ControlRow {
  const char* name;
  CPrefsPropSheet::PageIndex page;
  std::function<void(PreferencesTest&)> change;
  std::string stored;         // text that file or key holds afterwards, and not before
  PackedDate shown = kShown;  // date whose month looks otherwise afterwards
  bool isSeen = true;

  void Change(PreferencesTest& test) const {
    test.sheet->ShowPage(page);
    PreferencesTest::Settle();
    change(test);
    PreferencesTest::Settle();
    const bool isDependent =
        test.Find("collapse").isEnabled() == test.Find<QCheckBox>("fullCell").isChecked();
    EXPECT_TRUE(isDependent || page != kScreen);
  }
};

ControlRow Box(const char* name, CPrefsPropSheet::PageIndex page, const std::string& stored,
               bool isSeen = true, PackedDate shown = kShown) {
  return {name, page, [name](PreferencesTest& test) { test.Click(name); }, stored, shown, isSeen};
}

void TypePicture(PreferencesTest& test) {
  auto& edit = *test.Find("picturePath").findChild<QLineEdit*>();
  edit.setFocus();
  QTest::keyClicks(&edit, u"/nowhere/ciel.png"_s);
  test.Find("grid").setFocus();
}

void ChooseFont(PreferencesTest& test) {
  test.InDialog<QFontDialog>([](QFontDialog& dialog) {
    dialog.setCurrentFont(QFont(u"DejaVu Serif"_s, 12, QFont::Bold));
    dialog.accept();
  });
  QTest::keyClick(&test.Find("chooseFont"), Qt::Key_Return);
}

// Types a row of the civil years, and those above it, which may not be empty.
ControlRow CivilYears(int row) {
  const auto type = [row](PreferencesTest& test) {
    const auto date = [](int number, const QString& years) {
      return u"25/03/1"_s + QString::number(5 - number) + years;
    };
    for (int above = 1; above < row; ++above)
      test.Type(qPrintable(u"row%1"_s.arg(above)), date(above, u"50"_s));
    test.Type(qPrintable(u"row%1"_s.arg(row)), date(row, u"00"_s));
    test.Click(qPrintable(u"plusOne%1"_s.arg(row)));
  };
  return {"row", kGeneral, type, "+1" + std::to_string(5 - row) + "000325",
          Pack(1010 + 100 * (5 - row), 4, 1)};
}

ControlRow ColorButton(int color) {
  const auto choose = [color](PreferencesTest& test) {
    const QString caption =
        QString::fromStdU16String(std::u16string(ColorTable()[static_cast<std::size_t>(color)].text));
    for (auto* const button : test.sheet->findChildren<QPushButton*>()) {
      if (button->accessibleName() != caption) continue;
      test.InDialog<QColorDialog>([&](QColorDialog& dialog) {
        EXPECT_EQ(dialog.windowTitle(), caption);
        dialog.setCurrentColor(QColor(0x12, 0x34, 0x56));
        dialog.accept();
      });
      QTest::keyClick(button, Qt::Key_Return);
      EXPECT_EQ(button->accessibleDescription(), u"#123456"_s);
    }
  };
  return {"color", kColors, choose, "#563412"};
}

std::vector<ControlRow> Controls() {
  std::vector<ControlRow> controls = {
      Box("grid", kScreen, "\"Grid\"=dword:00000000"),
      Box("weekNumbers", kScreen, "\"ShowWeekNumber\"=dword:00000000"),
      Box("cellTexts", kScreen, "\"CellTexts\"=dword:00000001"),
      Box("circle", kScreen, "\"CircleTheDay\"=dword:00000001"),
      Box("collapse", kScreen, "\"CollapseCells\"=dword:00000000"),
      Box("fullCell", kScreen, "\"FullCellBkgnd\"=dword:00000000"),
      Box("tips", kScreen, "\"TipsEvtOnly\"=dword:00000000"),
      Box("magnet", kScreen, "\"MagnetMouse\"=dword:00000000", false),
      Box("picture", kScreen, "<bgImage>1<"),
      {"circleWidth", kScreen,
       [](PreferencesTest& test) { QTest::keyClick(&test.Find("circleWidth"), Qt::Key_Down); },
       "\"CircleWidth\"=dword:00000003"},
      {"picturePath", kScreen, TypePicture, "<bgImagePath>/nowhere/ciel.png<", kShown, false},
      {"chooseFont", kScreen, ChooseFont, "<fontName>DejaVu Serif<"},
      {"chooseFont", kScreen, ChooseFont, "<fontWeight>700<"},
      {"alpha", kColors, [](PreferencesTest& test) { QTest::keyClick(&test.Find("alpha"), Qt::Key_PageUp); },
       "\"BkgndAlpha\"=dword:00000090"},
      Box("iso8601", kGeneral, "<iso8601>0<"),
      Box("proleptic", kGeneral, "<proleptic>1<", true, 40201),
      {"start", kGeneral, [](PreferencesTest& test) { test.Type("start", u"14/09/1752"_s); },
       "<startGregorian>17520914<", 17520902},
      {"reformPresets", kGeneral, [](PreferencesTest& test) { test.Choose("reformPresets", u"Russie"_s); },
       "<startGregorian>19180214<", 19180214},
      {"yearPresets", kGeneral, [](PreferencesTest& test) { test.Choose("yearPresets", u"1er mars"_s); },
       "<firstDayOfYear>15820101", 15000201},
  };
  for (const int row : {1, 2, 3, 4}) controls.push_back(CivilYears(row));
  for (int color = 0; color < kColorCount; ++color) controls.push_back(ColorButton(color));
  return controls;
}

TEST_F(PreferencesTest, EachControlIsFoundAgainInFileKeyAndOnScreenAndCancelChangesNothing) {
  const std::string fresh = Stored();
  const auto file = files.files;
  const auto key = store.text;
  for (const ControlRow& control : Controls()) {
    SCOPED_TRACE(control.name + (" " + control.stored));
    EXPECT_EQ(fresh.find(control.stored), std::string::npos);
    AfterRestart(control.shown);  // large glyphs are drawn a little otherwise the first time
    const Seen before = AfterRestart(control.shown);

    // The header is not compared as a picture: once the toolkit has drawn the title of the preview, it
    // smooths the edges of large letters a little otherwise.
    const DisplaySettings display = Display();
    const CalendarRules rules = Rules();
    OpenSheet();
    control.Change(*this);
    Press(QDialogButtonBox::Cancel);
    EXPECT_EQ(Stored(), fresh);
    EXPECT_TRUE(Display() == display && Rules() == rules);
    EXPECT_EQ(SeenAt(control.shown).month, before.month);

    OpenSheet();
    control.Change(*this);
    EXPECT_EQ(Stored(), fresh);
    Press(QDialogButtonBox::Ok);
    ASSERT_FALSE(sheet->isVisible());
    EXPECT_NE(Stored().find(control.stored), std::string::npos) << Stored();
    EXPECT_EQ(AfterRestart(control.shown) != before, control.isSeen);

    sheet.reset();
    frame.reset();
    store.text = key;
    files.files = file;
  }
  EXPECT_EQ(messages.beeps, 0);
}

}  // namespace
}  // namespace orbisol
