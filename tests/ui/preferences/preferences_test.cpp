// The sheet of the preferences as a whole: what its buttons keep, what it refuses, its presets and its
// preview.

#include <QColorDialog>
#include <QSignalSpy>
#include <QSlider>
#include <QStackedWidget>

#include "tests/ui/preferences/preferences_fixture.h"
#include "ui/preferences/color_presets.h"
#include "ui/toolkit/colors.h"
#include "ui/toolkit/date_edit.h"

namespace orbisol {
namespace {

using namespace Qt::StringLiterals;

TEST_F(PreferencesTest, CancelAfterApplyKeepsWhatWasAppliedAndNothingLater) {
  const std::string fresh = Stored();
  EXPECT_FALSE(sheet->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Apply)->isEnabled());
  Click("proleptic");
  Press(QDialogButtonBox::Apply);
  EXPECT_EQ(Stored(), fresh);
  EXPECT_FALSE(Rules().proleptic);
  Click("iso8601");
  QTest::keyClick(sheet.get(), Qt::Key_Escape);
  EXPECT_NE(Stored().find("<proleptic>1<"), std::string::npos);
  EXPECT_TRUE(Rules().proleptic && Rules().iso8601);
  EXPECT_FALSE(Display().changed);
}

TEST_F(PreferencesTest, TheSheetFitsTheScreenAndShowsItsPagesWholeWhereItCan) {
  const QFont usual = QApplication::font();
  for (const int times : {1, 2, 4}) {
    QApplication::setFont(QFont(usual.family(), times * usual.pointSize()));
    OpenSheet();
    EXPECT_EQ(sheet->size().boundedTo(sheet->screen()->availableSize()), sheet->size()) << times;
    const auto& pages = *sheet->findChild<QStackedWidget*>();
    const QSize seen = pages.parentWidget()->size();
    EXPECT_EQ(pages.size().boundedTo(seen) == pages.size(), times < 4) << times;
  }
  QApplication::setFont(usual);
}

// What is applied is in no hands but the sheet's when the session ends over it.
TEST_F(PreferencesTest, TheEndOfTheSessionKeepsWhatWasAppliedAndNothingLater) {
  Click("proleptic");
  frame->KeepForNextSession();
  EXPECT_EQ(Stored().find("<proleptic>1<"), std::string::npos);
  Press(QDialogButtonBox::Apply);
  Click("iso8601");
  frame->KeepForNextSession();
  EXPECT_NE(Stored().find("<proleptic>1<"), std::string::npos);
  EXPECT_EQ(Stored().find("<iso8601>0<"), std::string::npos);
  EXPECT_TRUE(sheet->isVisible() && Rules().proleptic && Rules().iso8601);
}

TEST_F(PreferencesTest, AFileThatCannotSimplyBeReplacedIsAskedAboutAndNoAnswerChangesNothing) {
  Content().vacations.clear();                                // not saved yet
  files.Put(u"/user/Calendar.xml", BytesWith(u"Une autre"));  // somebody else wrote it
  const std::string theirs = files.files.at(u"/user/Calendar.xml").bytes;
  Click("iso8601");
  sheet->ShowPage(CPrefsPropSheet::kDisplayPage);
  Click("grid");
  Press(QDialogButtonBox::Ok);
  EXPECT_TRUE(sheet->isVisible());
  Press(QDialogButtonBox::Apply);  // can be pressed again
  Press(QDialogButtonBox::Cancel);
  EXPECT_TRUE(sheet->isVisible());
  EXPECT_EQ(messages.questions.size(), 2U);
  EXPECT_EQ(files.files.at(u"/user/Calendar.xml").bytes, theirs);
  EXPECT_NE(DwordOf(*store.Read(), "Grid"), 0U);
  EXPECT_TRUE(Rules().iso8601 && Display().grid);
  EXPECT_TRUE(Content().vacations.empty());
  Press(QDialogButtonBox::Cancel);
  EXPECT_FALSE(sheet->isVisible());
  EXPECT_EQ(messages.questions.size(), 2U);
  OpenSheet();
  const bool isIso = Find<QCheckBox>("iso8601").isChecked();
  Click("iso8601");
  messages.answers = {1};  // reload
  Press(QDialogButtonBox::Ok);
  EXPECT_FALSE(sheet->isVisible());
  EXPECT_EQ(Content().dayEvents[0].name.View(), u"Une autre");
  EXPECT_EQ(Rules().iso8601, isIso);
}

TEST_F(PreferencesTest, RowsOutOfOrderAreRefusedAtTheirFieldAndNothingIsStored) {
  constexpr struct {
    const char* rows[4];  // as typed; "" leaves a row empty
    const char* start;
    const char* field;  // that gets the focus; null where the rows are accepted
  } kCases[] = {
      {{"25/03/1400", "25/03/1300", "25/03/1200", "25/03/1100"}, "15/10/1582", nullptr},
      {{"25/03/1300", "25/03/1400", "", ""}, "15/10/1582", "row1"},  // the older first
      {{"25/03/1400", "", "25/03/1300", ""}, "15/10/1582", "row2"},
      {{"16/10/1582", "", "", ""}, "15/10/1582", "row1"},
      {{"30/02/1400", "", "", ""}, "15/10/1582", "row1"},
      {{"25/03/1400", "", "", ""}, "29/02/1700", "start"},
      {{"01/01/1701", "", "", ""}, "12/01/1701", nullptr},  // a day that this reform drops
      {{"", "", "", ""}, "10/10/1582", nullptr},            // one that the reform in force drops
      {{"", "", "", ""}, "", "start"},
  };
  for (const auto& example : kCases) {
    SCOPED_TRACE(std::string(example.start) + " " + example.rows[0] + " " + example.rows[1] + " " +
                 example.rows[2]);
    const std::string fresh = Stored();
    OpenSheet();
    Type("start", QString::fromLatin1(example.start));
    for (int row = 0; row < 4; ++row) {
      const char* const text = example.rows[row];
      Type(qPrintable(u"row%1"_s.arg(row + 1)), QString::fromLatin1(*text == '\0' ? "aucune" : text));
    }
    Click("iso8601");
    const int place = Find("row4").y();
    sheet->ShowPage(CPrefsPropSheet::kColorsPage);
    const int beeps = messages.beeps;
    Press(QDialogButtonBox::Ok);
    EXPECT_EQ(sheet->isVisible(), example.field != nullptr);
    EXPECT_EQ(messages.beeps - beeps, example.field != nullptr ? 1 : 0);
    if (example.field != nullptr) {
      EXPECT_EQ(sheet->focusWidget(), &Find(example.field));
      EXPECT_TRUE(Find(example.field).isVisible());
      const QString reason = Find<QLabel>("note").text();
      EXPECT_FALSE(reason.isEmpty());
      EXPECT_EQ(Find(example.field).accessibleDescription(), reason);
      EXPECT_EQ(Find("row4").y(), place);  // no field moves away from under the pointer
      Click("proleptic");                  // any change takes the refusal back
      const auto& field = Find<CDateEdit>(example.field);
      EXPECT_TRUE(!field.IsValid() || field.accessibleDescription() != reason);
      Press(QDialogButtonBox::Cancel);
      EXPECT_EQ(Stored(), fresh);
    }
  }
}

TEST_F(PreferencesTest, PresetsFillTheFieldsAndThePreviewShowsTheirReform) {
  Choose("reformPresets", u"Danemark"_s);
  EXPECT_EQ(sheet->Preview().Sample().month.month, 2);
  EXPECT_TRUE(sheet->Preview().DayRect(2, 19).isEmpty());
  EXPECT_FALSE(sheet->Preview().DayRect(2, 18).isEmpty());
  Choose("yearPresets", u"25 mars, depuis"_s);
  EXPECT_EQ(Find<CDateEdit>("start").Date(), 17520914);
  Choose("reformPresets", u"Rome"_s);
  Choose("yearPresets", u"1er mars"_s);
  EXPECT_EQ(Find<CDateEdit>("row1").Date(), 15820101);
  EXPECT_TRUE(Find<QLabel>("note").text().contains(u"1582"_s));
}

TEST_F(PreferencesTest, ClicksOnThePreviewEditTheColorsOfWhatWasHit) {
  CPrefCalWin& preview = sheet->Preview();
  sheet->ShowPage(CPrefsPropSheet::kDisplayPage);
  Settle();
  QSignalSpy clicks(&preview, &CPrefCalWin::elementClicked);
  QTest::mouseClick(&preview, Qt::LeftButton, {}, preview.DayRect(3, 8).center());
  EXPECT_EQ(clicks.size(), 0);
  sheet->ShowPage(CPrefsPropSheet::kColorsPage);
  Settle();
  const struct {
    QPoint at;
    ColorIndex foreground, background;
  } kCases[] = {
      {{preview.width() / 2, 2}, kColorCalHeader, kColorBgCal},
      {{preview.width() / 3, preview.height() / 8 + 2}, kHeaderTextColor, kHeaderBgColor},
      {preview.DayRect(3, 2).center(), kStandardTextColor, kStandardBgColor},
      {preview.DayRect(3, 8).center(), kHolidayText, kHolidayBack},
      {preview.DayRect(3, 17).center(), kEventText, kEventBack},
      {preview.DayRect(3, 22).center(), kVacationText, kVacationBack},
      {preview.DayRect(3, 10).center(), kCircleColor, kStandardBgColor},
      {preview.DayRect(2, 28).center(), kGrayTextColor, kStandardBgColor},
      {{preview.width() - 3, preview.height() / 2}, kColorWeekNumber, kStandardBgColor},
  };
  for (const auto& example : kCases) {
    for (const auto& [button, index] :
         {std::pair{Qt::LeftButton, example.foreground}, std::pair{Qt::RightButton, example.background}}) {
      const QImage before = preview.grab().toImage();
      InDialog<QColorDialog>([&, i = index](QColorDialog& dialog) {
        EXPECT_EQ(dialog.windowTitle().toStdU16String(), ColorTable()[static_cast<std::size_t>(i)].text);
        EXPECT_EQ(dialog.customColor(4), QColor(Qt::white));
        dialog.setCurrentColor(QColor(10 + i, 100, example.at.x() % 200));
        dialog.accept();
      });
      QTest::mouseClick(&preview, button, {}, example.at);
      Settle();
      EXPECT_NE(preview.grab().toImage(), before) << index;
    }
  }
  auto& alpha = Find<QSlider>("alpha");
  QTest::keyClick(&alpha, Qt::Key_Home);
  EXPECT_TRUE(alpha.value() == 16 || alpha.value() == 255);
  EXPECT_EQ(alpha.minimum(), 16);
}

TEST_F(PreferencesTest, ASetOfColorsThatNeedsAPlainGroundTakesThePictureAwayAndTheLightOneBringsItBack) {
  // Whether the picture is shown by hand before the set is chosen, the set, and whether it is shown
  // afterwards.
  const std::tuple<bool, QString, bool> kSteps[] = {
      {false, u"Sombre"_s, false},   {false, u"Clair"_s, false}, {true, u"Sombre"_s, false},
      {true, u"Contraste"_s, false}, {false, u"Clair"_s, true},  {false, u"Clair"_s, true},
  };
  for (const auto& [isShownByHand, preset, isShown] : kSteps) {
    SCOPED_TRACE(qPrintable(preset));
    sheet->ShowPage(CPrefsPropSheet::kDisplayPage);
    if (isShownByHand) Click("picture");
    sheet->ShowPage(CPrefsPropSheet::kColorsPage);
    const bool hadNote = !Find<QLabel>("presetNote").text().isEmpty();
    EXPECT_FALSE(hadNote && isShownByHand);
    Choose("presets", preset);
    sheet->ShowPage(CPrefsPropSheet::kDisplayPage);
    EXPECT_EQ(Find<QCheckBox>("picture").isChecked(), isShown);
  }
  EXPECT_TRUE(Find<QLabel>("presetNote").text().isEmpty());
}

TEST_F(PreferencesTest, TextsInTheCellsAreACommandThatStoresOneValueAndHoldsWhereItCannot) {
  sheet.reset();
  const auto bytes = files.files.at(u"/user/Calendar.xml").bytes;
  store.written.clear();
  QAction* const action = frame->Commands().Action(kCmdToggleCellTexts);
  const QImage before = Dialog().Month().grab().toImage();
  action->trigger();
  ASSERT_EQ(store.written.size(), 1U);
  EXPECT_EQ(store.written[0].name, "CellTexts");
  EXPECT_EQ(files.files.at(u"/user/Calendar.xml").bytes, bytes);
  EXPECT_TRUE(action->isChecked());
  EXPECT_NE(Dialog().Month().grab().toImage(), before);
  store.readOnly = true;
  action->trigger();
  EXPECT_FALSE(action->isChecked());
  EXPECT_EQ(Dialog().Month().grab().toImage(), before);
  OpenSheet();
  EXPECT_FALSE(Find<QCheckBox>("cellTexts").isChecked());
  EXPECT_EQ(KeyChanges(Display()).back().name, "CellTexts");
  Click("iso8601");
  Press(QDialogButtonBox::Ok);
  EXPECT_EQ(messages.errors.size(), 1U);  // the switches were not stored
}

// A day's text stands on its own ground, on that of a vacation, or on any mixture of a fill with the plain
// ground. Contrast is least at one end of a mixture where the text is lighter than both ends.
TEST(ColorPresetsTest, EveryTextIsLegibleOnEveryGroundItMayStandOn) {
  const std::pair<ColorIndex, std::vector<ColorIndex>> kRows[] = {
      {kHeaderTextColor, {kHeaderBgColor}},
      {kColorCalHeader, {kColorBgCal}},
      {kColorWeekNumber, {kStandardBgColor}},
      {kStandardTextColor, {kStandardBgColor}},
      {kGrayTextColor, {kStandardBgColor, kVacationBack}},
      {kHolidayText, {kStandardBgColor, kHolidayBack, kVacationBack}},
      {kEventText, {kStandardBgColor, kEventBack, kVacationBack}},
      {kVacationText, {kStandardBgColor, kHolidayBack, kEventBack, kVacationBack}},
  };
  for (const ColorPreset preset : {kDarkColors, kHighContrastColors}) {
    const auto colors = PresetColors(preset);
    const auto at = [&](ColorIndex index) { return ToQColor(colors[static_cast<std::size_t>(index)]); };
    for (const auto& [text, grounds] : kRows)
      for (const ColorIndex ground : grounds)
        EXPECT_GE(Contrast(at(text), at(ground)), 4.5) << preset << " " << text << " on " << ground;
    EXPECT_GE(Contrast(at(kCircleColor), at(kStandardBgColor)), 3.0);
  }
  EXPECT_EQ(PresetColors(kLightColors), CalendarLook().colors);
}

}  // namespace
}  // namespace orbisol
