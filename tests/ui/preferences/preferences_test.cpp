// The preferences as a user meets them: every control is changed with mouse or keyboard in the open sheet,
// and looked for in the calendar's file, in the key and on the screen of the next start.

#include <QAction>
#include <QCheckBox>
#include <QColorDialog>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFontDialog>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QSlider>
#include <QStackedWidget>
#include <QTemporaryDir>
#include <QTimer>

#include "content/calendar_content.h"
#include "tests/support/calendar_builder.h"
#include "tests/ui/shell/frame_fixture.h"
#include "ui/preferences/pref_cal_win.h"
#include "ui/preferences/prefs_prop_sheet.h"
#include "ui/toolkit/date_edit.h"
#include "ui/toolkit/picture_chooser.h"

namespace orbisol {
namespace {

using namespace Qt::StringLiterals;

constexpr PackedDate kShown = 20240515;

class PreferencesTest : public FrameTest {
 protected:
  PreferencesTest() {
    CalendarFile calendar;
    calendar.content = {{Rule(kFixedDate, {.month = 5, .day = 8, .name = u"Victoire"}),
                         Rule(kFixedDate, {.isPublic = false, .month = 5, .day = 14, .name = u"Dîner"})},
                        {Period(20240520, 20240524, u"Vacances")}};
    calendar.look.backgroundImage = false;
    files.Put(u"/user/Calendar.xml", WriteCalendar(calendar, CalendarForm::kUser));
    store.Write({{"FullCellBkgnd", DwordValue(1)}});
    StoreLayout({.rect = {50, 50, 1250, 900}, .rightPaneShown = true});  // cells have room for texts
    Open();
    OpenSheet();
  }

  void OpenSheet() {
    sheet = std::make_unique<CPrefsPropSheet>(SavePlaces{store, calendars}, frame.get());
    QObject::connect(sheet.get(), &CPrefsPropSheet::settingsSaved, frame.get(),
                     &CCalendarFrame::CalendarChanged);
    sheet->show();
    sheet->activateWindow();
    Settle();
  }

  template <class Widget = QWidget>
  Widget& Find(const char* name) {
    auto* const found = sheet->findChild<Widget*>(QString::fromLatin1(name));
    if (found == nullptr) throw std::runtime_error(name);
    return *found;
  }
  void Press(QDialogButtonBox::StandardButton which) {
    QTest::mouseClick(sheet->findChild<QDialogButtonBox*>()->button(which), Qt::LeftButton);
    Settle();
  }
  void Click(const char* box) {
    auto& widget = Find<QCheckBox>(box);
    QTest::mouseClick(&widget, Qt::LeftButton, {}, QPoint(8, widget.height() / 2));
  }
  void Type(const char* field, const QString& text) {
    auto& edit = Find<QLineEdit>(field);
    edit.setFocus();
    edit.selectAll();
    QTest::keyClicks(&edit, text);
  }
  void Choose(const char* menuButton, const QString& beginning) {
    for (QAction* const action : Find<QPushButton>(menuButton).menu()->actions())
      if (action->text().startsWith(beginning)) return action->trigger();
    ADD_FAILURE() << "no entry " << qPrintable(beginning);
  }
  // Does what opens a dialog, and leaves that dialog to `act`.
  template <class Dialog>
  void WithDialog(const std::function<void()>& open, const std::function<void(Dialog&)>& act) {
    QTimer untilOpen;
    bool isOpened = false;
    QObject::connect(&untilOpen, &QTimer::timeout, [&] {
      auto* const dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
      if (dialog == nullptr) return;
      untilOpen.stop();
      isOpened = true;
      act(*dialog);
      dialog->accept();
    });
    untilOpen.start(0);
    open();
    EXPECT_TRUE(isOpened);
  }

  // The main window without what depends on the focus and the pointer.
  struct Seen {
    QImage month, header;
    QString status;
    bool operator==(const Seen&) const = default;
  };
  // Returns the main window as it is with that date after a restart.
  Seen AfterRestart(PackedDate date) {
    sheet.reset();
    frame.reset();
    Display() = DisplaySettings();
    Rules() = DefaultCalendarRules();
    Content() = CalendarContent();
    Select(date);
    Open();
    Show(date);
    Dialog().Month().clearFocus();
    Settle();
    return {Dialog().Month().grab().toImage(), Dialog().Header().grab().toImage(), frame->StatusText()};
  }
  std::string Stored() const { return files.files.at(u"/user/Calendar.xml").bytes + *store.text; }

  std::unique_ptr<CPrefsPropSheet> sheet;
};

struct ControlRow {
  const char* name;
  CPrefsPropSheet::PageIndex page;
  std::function<void(PreferencesTest&)> change;
  std::string stored;         // text that file or key holds afterwards, and not before
  PackedDate shown = kShown;  // date whose month looks otherwise afterwards
  bool isSeen = true;
};

class PreferencesControlTest : public PreferencesTest {
 public:
  static void ClickBox(PreferencesTest& test, const char* box) {
    static_cast<PreferencesControlTest&>(test).Click(box);
  }
  static PreferencesControlTest& Of(PreferencesTest& test) {
    return static_cast<PreferencesControlTest&>(test);
  }

  static std::vector<ControlRow> Controls();

  void Change(const ControlRow& control) {
    sheet->ShowPage(control.page);
    Settle();
    control.change(*this);
    Settle();
  }
};

ControlRow Box(const char* name, CPrefsPropSheet::PageIndex page, const std::string& stored,
               bool isSeen = true, PackedDate shown = kShown) {
  return {name,   page,  [name](PreferencesTest& test) { PreferencesControlTest::ClickBox(test, name); },
          stored, shown, isSeen};
}

std::vector<ControlRow> PreferencesControlTest::Controls() {
  constexpr auto kGeneral = CPrefsPropSheet::kConfigurationPage;
  constexpr auto kScreen = CPrefsPropSheet::kDisplayPage;
  constexpr auto kColors = CPrefsPropSheet::kColorsPage;
  std::vector<ControlRow> controls = {
      Box("grid", kScreen, "\"Grid\"=dword:00000000"),
      Box("weekNumbers", kScreen, "\"ShowWeekNumber\"=dword:00000000"),
      Box("cellTexts", kScreen, "\"CellTexts\"=dword:00000001"),
      Box("circle", kScreen, "\"CircleTheDay\"=dword:00000001"),
      Box("fullCell", kScreen, "\"FullCellBkgnd\"=dword:00000000"),
      Box("collapse", kScreen, "\"CollapseCells\"=dword:00000000"),
      Box("tips", kScreen, "\"TipsEvtOnly\"=dword:00000000"),
      Box("magnet", kScreen, "\"MagnetMouse\"=dword:00000000", false),
      Box("picture", kScreen, "<bgImage>1<"),
      {"circleWidth", kScreen,
       [](PreferencesTest& test) { QTest::keyClick(&Of(test).Find("circleWidth"), Qt::Key_Down); },
       "\"CircleWidth\"=dword:00000003"},
      {"picturePath", kScreen,
       [](PreferencesTest& test) {
         auto& edit = *Of(test).Find("picturePath").findChild<QLineEdit*>();
         edit.setFocus();
         QTest::keyClicks(&edit, u"/nowhere/ciel.png"_s);
         Of(test).Find("grid").setFocus();
       },
       "<bgImagePath>/nowhere/ciel.png<", kShown, false},
      {"chooseFont", kScreen,
       [](PreferencesTest& test) {
         Of(test).WithDialog<QFontDialog>(
             [&] { QTest::mouseClick(&Of(test).Find("chooseFont"), Qt::LeftButton); },
             [](QFontDialog& dialog) { dialog.setCurrentFont(QFont(u"DejaVu Serif"_s, 12, QFont::Bold)); });
       },
       "<fontName>DejaVu Serif<"},
      {"alpha", kColors,
       [](PreferencesTest& test) { QTest::keyClick(&Of(test).Find("alpha"), Qt::Key_PageUp); },
       "\"BkgndAlpha\"=dword:00000090"},
      Box("iso8601", kGeneral, "<iso8601>0<"),
      Box("proleptic", kGeneral, "<proleptic>1<", true, 40201),
      {"start", kGeneral, [](PreferencesTest& test) { Of(test).Type("start", u"14/09/1752"_s); },
       "<startGregorian>17520914<", 17520902},
      {"reformPresets", kGeneral,
       [](PreferencesTest& test) { Of(test).Choose("reformPresets", u"Russie"_s); },
       "<startGregorian>19180214<", 19180214},
      {"yearPresets", kGeneral, [](PreferencesTest& test) { Of(test).Choose("yearPresets", u"1er mars"_s); },
       "<firstDayOfYear>15820101", 15000201},
  };
  for (const int row : {1, 2, 3, 4}) {
    controls.push_back({"row", kGeneral,
                        [row](PreferencesTest& test) {
                          const auto date = [](int fromBelow, const QString& years) {
                            return u"25/03/1"_s + QString::number(5 - fromBelow) + years;
                          };
                          for (int above = 1; above < row; ++above)
                            Of(test).Type(qPrintable(u"row%1"_s.arg(above)), date(above, u"50"_s));
                          Of(test).Type(qPrintable(u"row%1"_s.arg(row)), date(row, u"00"_s));
                          Of(test).Click(qPrintable(u"plusOne%1"_s.arg(row)));
                        },
                        "+1" + std::to_string(5 - row) + "000325", Pack(1010 + 100 * (5 - row), 4, 1)});
  }
  for (int color = 0; color < kColorCount; ++color)
    controls.push_back({"color", kColors,
                        [color](PreferencesTest& test) {
                          const auto caption = ColorTable()[static_cast<std::size_t>(color)].text;
                          for (auto* const button : Of(test).sheet->findChildren<QPushButton*>()) {
                            if (button->accessibleName() !=
                                QString::fromUtf16(caption.data(), static_cast<qsizetype>(caption.size())))
                              continue;
                            Of(test).WithDialog<QColorDialog>(
                                [&] { QTest::mouseClick(button, Qt::LeftButton); },
                                [&](QColorDialog& dialog) {
                                  EXPECT_EQ(dialog.windowTitle(), button->accessibleName());
                                  dialog.setCurrentColor(QColor(0x12, 0x34, 0x56));
                                });
                          }
                        },
                        "#563412"});
  return controls;
}

TEST_F(PreferencesControlTest, EachIsFoundAgainInFileKeyAndOnScreenAndCancelChangesNothing) {
  const std::string fresh = Stored();
  const auto file = files.files;
  const auto key = store.text;
  for (const ControlRow& control : Controls()) {
    SCOPED_TRACE(control.name + (" " + control.stored));
    EXPECT_EQ(fresh.find(control.stored), std::string::npos);
    AfterRestart(control.shown);  // large glyphs are drawn a little otherwise the first time
    const Seen before = AfterRestart(control.shown);

    // Live records say all that is painted. Pictures are not compared here: the toolkit draws large glyphs a
    // little otherwise after new ones, such as those of the preview, came into its cache.
    const DisplaySettings display = Display();
    const CalendarRules rules = Rules();
    OpenSheet();
    Change(control);
    Press(QDialogButtonBox::Cancel);
    EXPECT_EQ(Stored(), fresh);
    EXPECT_TRUE(Display() == display);
    EXPECT_TRUE(Rules() == rules);

    OpenSheet();
    Change(control);
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

// A sheet that is open while somebody else writes the file must not overwrite it in silence.
TEST_F(PreferencesTest, AFileThatSomebodyElseChangedIsAskedAboutAndNoAnswerChangesNothing) {
  sheet.reset();
  files.Put(u"/user/Calendar.xml", BytesWith(u"Une autre"));
  Content().vacations.clear();  // not saved yet
  const std::string theirs = Stored();
  OpenSheet();
  Click("iso8601");
  Press(QDialogButtonBox::Ok);
  EXPECT_TRUE(sheet->isVisible());
  EXPECT_EQ(messages.questions.size(), 1U);
  EXPECT_EQ(Stored(), theirs);
  EXPECT_TRUE(Rules().iso8601);
  EXPECT_TRUE(Content().vacations.empty());
  messages.answers = {1};  // reload
  Press(QDialogButtonBox::Ok);
  EXPECT_FALSE(sheet->isVisible());
  EXPECT_EQ(Content().dayEvents[0].name.View(), u"Une autre");
}

TEST_F(PreferencesTest, RowsOutOfOrderAreRefusedAtTheirFieldAndNothingIsStored) {
  constexpr struct {
    const char* rows[4];  // as typed; "" leaves a row empty
    const char* start;
    const char* field;  // that gets the focus; null where the rows are accepted
  } kCases[] = {
      {{"25/03/1400", "25/03/1300", "25/03/1200", "25/03/1100"}, "15/10/1582", nullptr},
      {{"15/10/1582", "", "", ""}, "15/10/1582", nullptr},
      {{"", "", "", ""}, "15/10/1582", nullptr},
      {{"25/03/1300", "25/03/1400", "", ""}, "15/10/1582", "row1"},  // the older first
      {{"25/03/1300", "25/03/1300", "", ""}, "15/10/1582", "row1"},
      {{"25/03/1400", "", "25/03/1300", ""}, "15/10/1582", "row2"},
      {{"16/10/1582", "", "", ""}, "15/10/1582", "row1"},
      {{"25/03/1400", "25/03/1300", "25/03/1700", ""}, "15/10/1582", "row3"},
      {{"30/02/1400", "", "", ""}, "15/10/1582", "row1"},
      {{"25/03/1400", "", "", ""}, "29/02/1700", "start"},
      {{"01/01/1701", "", "", ""}, "12/01/1701", nullptr},  // a day that this reform drops
      {{"", "", "", ""}, "10/10/1582", nullptr},            // one that the reform in force drops
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
    sheet->ShowPage(CPrefsPropSheet::kColorsPage);
    const int beeps = messages.beeps;
    Press(QDialogButtonBox::Ok);
    EXPECT_EQ(sheet->isVisible(), example.field != nullptr);
    EXPECT_EQ(messages.beeps - beeps, example.field != nullptr ? 1 : 0);
    if (example.field != nullptr) {
      EXPECT_EQ(sheet->focusWidget(), &Find(example.field));
      EXPECT_TRUE(Find(example.field).isVisible());
      EXPECT_FALSE(Find<QLabel>("note").text().isEmpty());
      Press(QDialogButtonBox::Cancel);
      EXPECT_EQ(Stored(), fresh);
    }
  }
}

TEST_F(PreferencesTest, PresetsOfReformsGiveTheMonthsOfTheirCountries) {
  const struct {
    QString country;
    int year, month;
    std::set<int> gone;
  } kCases[] = {
      {u"Royaume-Uni"_s, 1752, 9, {3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13}},
      {u"Danemark"_s, 1700, 2, {19, 20, 21, 22, 23, 24, 25, 26, 27, 28, 29}},
      {u"Russie"_s, 1918, 2, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13}},
  };
  for (const auto& example : kCases) {
    SCOPED_TRACE(qPrintable(example.country));
    OpenSheet();
    Choose("reformPresets", example.country);
    const int gap = *example.gone.begin();
    EXPECT_TRUE(sheet->Preview().DayRect(example.month, gap).isEmpty());
    EXPECT_EQ(sheet->Preview().Sample().month.month, example.month);
    Press(QDialogButtonBox::Ok);
    Show(Pack(example.year, example.month, gap == 1 ? 14 : 1));
    const MonthModel& month = Dialog().Month().Month();
    const int last = example.month == 2 && example.year == 1918 ? 28 : example.month == 2 ? 29 : 30;
    for (int day = 1; day <= last; ++day)
      EXPECT_EQ(month.CellOf(example.month, day) == kNoCell, example.gone.count(day) > 0) << day;
  }
  OpenSheet();
  Choose("yearPresets", u"25 mars, depuis"_s);
  EXPECT_EQ(Find<CDateEdit>("start").Date(), 17520914);
  Choose("reformPresets", u"Rome"_s);
  Choose("yearPresets", u"1er mars"_s);
  EXPECT_EQ(Find<CDateEdit>("row1").Date(), 15820101);
  EXPECT_TRUE(Find<QLabel>("note").text().contains(u"1582"_s));
}

TEST_F(PreferencesTest, ClicksOnThePreviewEditTheColorsOfWhatWasHit) {
  CPrefCalWin& preview = sheet->Preview();
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
      WithDialog<QColorDialog>([&, b = button] { QTest::mouseClick(&preview, b, {}, example.at); },
                               [&, i = index](QColorDialog& dialog) {
                                 const auto caption = ColorTable()[static_cast<std::size_t>(i)].text;
                                 EXPECT_EQ(dialog.windowTitle().toStdU16String(), caption);
                                 EXPECT_EQ(dialog.customColor(4), QColor(Qt::white));
                                 dialog.setCurrentColor(QColor(10 + i, 100, example.at.x() % 200));
                               });
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
  sheet->ShowPage(CPrefsPropSheet::kDisplayPage);
  Click("picture");
  sheet->ShowPage(CPrefsPropSheet::kColorsPage);
  for (const auto& [preset, isShown] : {std::pair{u"Sombre"_s, false}, {u"Clair"_s, true}}) {
    Choose("presets", preset);
    EXPECT_EQ(Find<QLabel>("presetNote").text().isEmpty(), isShown);
    sheet->ShowPage(CPrefsPropSheet::kDisplayPage);
    EXPECT_EQ(Find<QCheckBox>("picture").isChecked(), isShown);
    sheet->ShowPage(CPrefsPropSheet::kColorsPage);
  }
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

}  // namespace
}  // namespace orbisol
