// The editors as a user has them: keys are typed, the calendar is saved, read back from the disk and looked
// at in the month.

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTest>
#include <QToolButton>

#include <memory>
#include <utility>

#include "content/month_model.h"
#include "content/selected_date.h"
#include "settings/display_settings.h"
#include "tests/support/calendar_builder.h"
#include "tests/support/dialog_test.h"
#include "tests/support/memory_files.h"
#include "tests/support/memory_store.h"
#include "ui/editors/events_dialog.h"
#include "ui/editors/row_list.h"
#include "ui/editors/vacations_dialog.h"
#include "ui/toolkit/field_note.h"
#include "ui/toolkit/plain_text.h"

namespace orbisol {
namespace {

class EditorTest : public DialogTest {
 protected:
  EditorTest() : DialogTest({2024, 5, 15}) {
    Display() = DisplaySettings();
    Content() = {};
    CalendarFile file;
    EXPECT_EQ(calendars.Save(u"Calendar", file, IfChanged::kRefuse).result, WriteResult::kWritten);
  }
  ~EditorTest() override { Content() = {}; }

  CEventsDialog& OpenEvents(PackedDate day = 0) {
    return Open(std::make_unique<CEventsDialog>(services, Content(), day, 2024));
  }
  CVacationsDialog& OpenVacations(PackedDate from = 0, PackedDate to = 0) {
    return Open(std::make_unique<CVacationsDialog>(services, Content(), from, to));
  }

  template <class Widget>
  Widget& Part(const char* name) {
    Widget* const found = dialog->findChild<Widget*>(QLatin1String(name));
    EXPECT_NE(found, nullptr) << name;
    return *found;
  }
  void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QWidget* const focus = dialog->focusWidget();
    QTest::keyClick(focus == nullptr ? dialog.get() : focus, key, modifiers);
  }
  // Goes to a field with Tab, as somebody without a mouse does, and types over what stands there.
  void Type(const char* field, const QString& text) {
    QWidget& target = Part<QWidget>(field);
    for (int i = 0; i < 60 && dialog->focusWidget() != &target; ++i) Press(Qt::Key_Tab);
    ASSERT_EQ(dialog->focusWidget(), &target) << "Tab leads to " << field;
    if (qobject_cast<QComboBox*>(&target) == nullptr) Press(Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(&target, text);
  }
  QString Note(const char* name) { return Part<CFieldNote>(name).Text(); }
  int Rows() { return Part<CRowList>("list").model()->rowCount(); }
  void Save() { Part<QDialogButtonBox>("buttons").button(QDialogButtonBox::Save)->click(); }

  CalendarContent OnDisk() {
    CalendarFile file;
    CCalendarStore fresh(files, kMemoryFolders);
    EXPECT_EQ(fresh.Load(u"Calendar", file), LoadResult::kLoaded);
    return file.content;
  }
  // The first event of each calendar: "Calendar=theirs Calendar (2)=mine ".
  std::string NamesOnDisk() {
    std::string all;
    for (const std::u16string& name : calendars.Names()) {
      const CalendarContent content = ReadCalendar(*calendars.BytesOf(name)).content;
      all += ToUtf8(name) + "=" +
             (content.dayEvents.empty() ? "" : ToUtf8(content.dayEvents[0].name.View())) + " ";
    }
    return all;
  }
  // The days of a month that carry a mark, as the month shows them.
  static std::vector<int> Marked(int year, int month, unsigned mark) {
    MonthModel model;
    model.year = year;
    model.month = month;
    model.Build(Content(), {}, MonthModel::kWithoutMoon);
    std::vector<int> days;
    for (const DayCell& cell : model.cells)
      if (cell.day != 0 && cell.month == month && (cell.marks & mark) != 0) days.push_back(cell.day);
    return days;
  }

  CMemoryFiles files;
  CCalendarStore calendars{files, kMemoryFolders};
  CMemoryStore store{"\"CalendarName\"=\"Calendar\"\n"};
  EditorServices services{{store, calendars}, {}};
  std::unique_ptr<QDialog> dialog;

 private:
  template <class Dialog>
  Dialog& Open(std::unique_ptr<Dialog> made) {
    Dialog& opened = *made;
    dialog = std::move(made);
    dialog->show();
    dialog->activateWindow();
    QApplication::processEvents();
    return opened;
  }
};

TEST_F(EditorTest, EveryKindOfEventIsTypedSavedReadBackAndSeen) {
  const struct {
    const char* what;
    std::vector<std::pair<const char*, QString>> typed;
    DayEvent rule;
    int year, month;
    std::vector<int> days;
  } kRows[] = {
      {"fixed date",
       {{"day", "14"}, {"month", "juil"}},
       Rule(kFixedDate, {.month = 7, .day = 14}),
       2024,
       7,
       {14}},
      {"Roman Easter", {{"distance", "39"}}, Rule(kRomanEaster, {.day = 39}), 2024, 5, {9}},
      {"Orthodox Easter", {{"distance", "-2"}}, Rule(kOrthodoxEaster, {.day = -2}), 2024, 5, {3}},
      {"n-th weekday",
       {{"ordinal", "q"}, {"weekday", "jeu"}, {"month", "nov"}, {"since", "01/01/1941"}},
       Rule(kNthWeekday, {.month = 11, .weekday = 4, .weeknum = 4, .from = 19410101}),
       2024,
       11,
       {28}},
      {"before a date",
       {{"weekday", "mer"}, {"day", "22"}, {"month", "nov"}},
       Rule(kWeekdayBefore, {.month = 11, .day = 22, .weekday = 3, .weeknum = 1}),
       2024,
       11,
       {20}},
      {"after a date",
       {{"weekday", "sam"}, {"day", "20"}, {"month", "juin"}, {"until", "31/12/2030"}},
       Rule(kWeekdayAfter, {.month = 6, .day = 20, .weekday = 6, .weeknum = 1, .to = 20301231}),
       2024,
       6,
       {22}},
      {"bank holiday",
       {{"day", "25"}, {"month", "d"}},
       Rule(kBankHoliday, {.month = 12, .day = 25}),
       2021,
       12,
       {27}},
      {"except Sunday",
       {{"day", "1"}, {"month", "jan"}},
       Rule(kExceptSunday, {.month = 1, .day = 1}),
       2023,
       1,
       {2}},
  };
  for (const bool isPublic : {false, true}) {
    for (const auto& row : kRows) {
      SCOPED_TRACE(row.what);
      Content() = {};
      OpenEvents();
      Type("name", QStringLiteral("x"));
      Type("type", {});
      for (int kind = 0; kind < static_cast<int>(row.rule.type); ++kind) Press(Qt::Key_Down);
      for (const auto& [field, text] : row.typed) Type(field, text);
      if (isPublic) {
        Type("isPublic", QStringLiteral(" "));
        Type("name", QStringLiteral("x"));
      }
      Press(Qt::Key_Return);
      ASSERT_EQ(Rows(), 1) << "Enter adds the event: "
                           << qPrintable(Note("nameNote") + Note("dayNote") + Note("untilNote"));
      Press(Qt::Key_Return);
      EXPECT_EQ(dialog->result(), QDialog::Accepted) << "Enter again saves";
      DayEvent rule = row.rule;
      rule.isPublic = isPublic;
      EXPECT_EQ(OnDisk().dayEvents, std::vector{rule});
      EXPECT_EQ(Content(), OnDisk());
      EXPECT_EQ(Marked(row.year, row.month, isPublic ? kHolidayMark : kEventMark), row.days);
    }
  }
}

TEST_F(EditorTest, APeriodThatWasDrawnIsTitledSavedAndSeen) {
  OpenVacations(20240706, 20240709);
  Type("title", QStringLiteral("Mer"));
  EXPECT_TRUE(Part<QLabel>("length").text().contains(QStringLiteral("4 jours")));
  Press(Qt::Key_Return);
  EXPECT_EQ(Rows(), 1);
  Type("from", QStringLiteral("08/07/2024"));
  Type("to", QStringLiteral("08/07/2024"));
  Press(Qt::Key_Return);
  EXPECT_EQ(Rows(), 1);
  EXPECT_TRUE(Note("toNote").contains(QStringLiteral("au moins deux jours"))) << "one day is refused";
  Type("to", QStringLiteral("10/07/2024"));
  EXPECT_TRUE(Part<QLabel>("length").text().contains(QStringLiteral("Chevauche « Mer »")));
  Save();  // takes over what was typed
  EXPECT_EQ(dialog->result(), QDialog::Accepted);
  EXPECT_EQ(OnDisk().vacations,
            (std::vector{Period(20240706, 20240709, u"Mer"), Period(20240708, 20240710)}));
  EXPECT_EQ(Marked(2024, 7, kVacationMark), (std::vector{6, 7, 8, 9, 10}));

  OpenVacations(-451220, -440110);  // over the end of a year before the era
  EXPECT_TRUE(
      Part<CRowList>("list").model()->index(0, 4).data().toString().contains(QStringLiteral("chevauche")));
  Save();
  EXPECT_EQ(OnDisk().vacations.size(), 4U);
  OpenVacations();
  EXPECT_EQ(Rows(), 3) << "its two records are one row";
  Part<QLineEdit>("filter").setText(QStringLiteral("x"));
  EXPECT_EQ(Part<CRowList>("list").accessibleDescription(),
            QStringLiteral("Aucune période ne correspond au filtre."));
}

TEST_F(EditorTest, HostileInputIsRefusedAtItsFieldAndKept) {
  const struct {
    const char* what;
    QString name;
    bool isAdded;
  } kRows[] = {
      {"300 characters", QString(300, QLatin1Char('a')), false},
      {"254 characters", QString(254, QLatin1Char('a')), true},
      {"blanks", QStringLiteral("   "), false},
      {"marks of no width", QString(QChar(0x200B)), false},
      {"emoji", QStringLiteral("\U0001F382 <b>&amp;</b>"), true},
      {"right to left", QStringLiteral("יום הולדת"), true},
  };
  for (const auto& row : kRows) {
    SCOPED_TRACE(row.what);
    Content() = {};
    OpenEvents(20240514);
    Part<QLineEdit>("name").setText(row.name);
    Part<QPushButton>("add").click();
    EXPECT_EQ(Rows(), row.isAdded ? 1 : 0);
    EXPECT_EQ(Note("nameNote").isEmpty(), row.isAdded);
    EXPECT_EQ(Part<QLineEdit>("name").text(), row.isAdded ? QString() : row.name) << "nothing typed is lost";
    Save();
    if (row.isAdded) {
      EXPECT_EQ(ToQString(OnDisk().dayEvents.at(0).name.View()), row.name);
    }
  }
}

TEST_F(EditorTest, AnImpossibleDateIsSaidBelowItsFieldAndIsNotForgotten) {
  Content().dayEvents = {Rule(kFixedDate, {.month = 5, .day = 1, .name = u"mine"})};
  CEventsDialog& events = OpenEvents();
  Type("name", QStringLiteral("Saint-Glinglin"));
  Type("until", QStringLiteral("3"));
  EXPECT_EQ(Note("untilNote"), QString()) << "somebody is still typing";
  Type("until", QStringLiteral("31/04/2024"));
  const QString reason = QStringLiteral("Cette date n'existe pas : avril 2024 n'a pas de jour 31.");
  EXPECT_EQ(Note("untilNote"), reason);
  EXPECT_EQ(Part<QWidget>("until").accessibleDescription(), reason);
  Type("since", QStringLiteral("30"));
  Save();
  EXPECT_EQ(dialog->result(), 0) << "an impossible date keeps the dialog open";
  EXPECT_TRUE(Note("sinceNote").contains(QStringLiteral("JJ/MM/AAAA")));
  EXPECT_EQ(dialog->focusWidget(), &Part<QWidget>("since"));
  events.SelectRow(0);
  EXPECT_EQ(events.ShownRow(), -1) << "the form is not left";
  Type("since", QStringLiteral("1er mai 2024"));
  EXPECT_EQ(Note("sinceNote") + Note("untilNote"), reason);
  Type("until", QStringLiteral("30/04/2024"));
  EXPECT_EQ(Note("untilNote"), QStringLiteral("La fin précède le début."));

  OpenVacations(20240706, 20240709);
  Type("from", QStringLiteral("31/04/2024"));
  EXPECT_EQ(Note("fromNote"), reason);
  Type("from", QStringLiteral("10/07/2024"));
  EXPECT_EQ(Note("fromNote") + Note("toNote"), QStringLiteral("La fin précède le début."));
}

// Somebody begins an event, then looks at another row.
TEST_F(EditorTest, ANewEntryWaitsAndIsNeverLost) {
  const auto begin = [&] {
    Content().dayEvents = {Rule(kFixedDate, {.month = 5, .day = 1, .name = u"mine"})};
    CEventsDialog& events = OpenEvents(20240514);
    Part<QLineEdit>("name").setText(QStringLiteral("begun"));
    events.SelectRow(0);
    EXPECT_EQ(Part<QLineEdit>("name").text(), QStringLiteral("mine"));
    EXPECT_EQ(events.ShownRow(), 0);
  };
  begin();
  Part<QPushButton>("create").click();
  EXPECT_EQ(Part<QLineEdit>("name").text(), QStringLiteral("begun"));
  begin();
  dialog->reject();
  EXPECT_EQ(messages.questions.size(), 1U) << "it is asked for";
  Save();
  EXPECT_EQ(OnDisk().dayEvents.size(), 2U);

  OpenVacations(20240706, 20240709);
  Part<QPushButton>("add").click();
  EXPECT_EQ(Rows(), 1);
  OpenVacations(20240801, 20240809);  // drawn over, and saved from another row
  Save();
  OpenVacations(20240901, 20240909);
  static_cast<CVacationsDialog&>(*dialog).SelectRow(0);
  Save();
  EXPECT_EQ(OnDisk().vacations, (std::vector{Period(20240801, 20240809), Period(20240901, 20240909)}));
}

TEST_F(EditorTest, TheEndOfASessionAsksNothingAndLosesNothing) {
  const struct {
    const char* what;
    const char16_t* failing;
    bool isChanged;
    const char *onDisk, *name;
  } kRows[] = {
      {"nothing in the way", nullptr, false, "Calendar=typed ", "Calendar"},
      {"somebody else's change", nullptr, true, "Calendar=theirs Calendar (2)=typed ", "Calendar (2)"},
      {"a file that cannot be written", u"/user/Calendar.xml", false, "Calendar= Calendar (2)=typed ",
       "Calendar (2)"},
  };
  for (const auto& row : kRows) {
    SCOPED_TRACE(row.what);
    files.files.clear();
    Display().calendarName.Set(u"Calendar");
    calendars.Save(u"Calendar", {}, IfChanged::kOverwrite);
    Content() = {};
    OpenEvents(20240514);
    KeepAllUnsaved();
    EXPECT_EQ(NamesOnDisk(), "Calendar= ") << "there is nothing to keep";
    if (row.isChanged) files.Put(u"/user/Calendar.xml", BytesWith(u"theirs"));
    if (row.failing != nullptr) files.failingWrites = {row.failing};
    Part<QLineEdit>("name").setText(QStringLiteral("typed"));
    KeepAllUnsaved();
    EXPECT_EQ(NamesOnDisk(), row.onDisk);
    EXPECT_EQ(ToUtf8(Display().calendarName.View()), row.name);
    EXPECT_TRUE(messages.shown.isEmpty());
    dialog->reject();
    EXPECT_FALSE(dialog->isVisible()) << "nothing is left to ask about";
    files.failingWrites.clear();
  }
}

TEST_F(EditorTest, WhatCannotBeSavedStaysInTheDialog) {
  OpenEvents(20240514);
  Part<QLineEdit>("name").setText(QStringLiteral("mine"));
  files.failingWrites = {u"/user/Calendar.xml"};
  Save();
  EXPECT_EQ(dialog->result(), 0);
  EXPECT_EQ(Rows(), 1);
  EXPECT_TRUE(Content().dayEvents.empty()) << "only what is saved is in force";
  EXPECT_TRUE(OnDisk().dayEvents.empty());
  dialog->reject();
  EXPECT_TRUE(dialog->isVisible()) << "a question that is closed keeps the dialog open";

  files.failingWrites.clear();
  files.Put(u"/user/Calendar.xml", BytesWith(u"theirs"));
  messages.answers = {1};  // reload
  Save();
  EXPECT_TRUE(dialog->isVisible());
  EXPECT_EQ(static_cast<CEventsDialog&>(*dialog).Events().NameOf(0), QStringLiteral("theirs"));
  EXPECT_EQ(Content(), CalendarWith(u"theirs").content);
  const CVersions& versions = calendars.Versions();
  ASSERT_EQ(versions.List(u"Calendar").size(), 1U) << "what was typed is a version";
  const std::string kept = *versions.Read(u"Calendar", versions.List(u"Calendar")[0]);
  EXPECT_EQ(ReadCalendar(kept).content.dayEvents.at(0).name.View(), u"mine");
  dialog->reject();
  EXPECT_FALSE(dialog->isVisible()) << "nothing is left to ask about";
}

TEST_F(EditorTest, StepsAreTakenBackAndMadeAgain) {
  for (const char16_t* const name : {u"un", u"deux", u"trois"})
    Content().dayEvents.push_back(Rule(kFixedDate, {.month = 5, .day = 14, .name = name}));
  CEventsDialog& events = OpenEvents();
  const auto names = [&] {
    QStringList all;
    for (int row = 0; row < events.Events().rowCount({}); ++row) all.append(events.Events().NameOf(row));
    return all.join(QLatin1Char(' '));
  };
  const auto undo = [&] { QTest::keyClick(&Part<QWidget>("list"), Qt::Key_Z, Qt::ControlModifier); };
  events.SelectRow(2);
  Part<QPushButton>("up").click();
  EXPECT_EQ(names(), QStringLiteral("un trois deux"));
  Type("name", QStringLiteral("quatre"));
  events.SelectRow(0);  // leaving the row takes over what was changed
  EXPECT_EQ(names(), QStringLiteral("un quatre deux"));
  Part<CRowList>("list").selectAll();
  Part<QPushButton>("remove").click();
  EXPECT_EQ(names(), QString());
  undo();
  EXPECT_EQ(names(), QStringLiteral("un quatre deux")) << "all rows come back at once";
  undo();
  undo();
  EXPECT_EQ(names(), QStringLiteral("un deux trois"));
  EXPECT_FALSE(Part<QToolButton>("undo").isEnabled());
  QTest::keyClick(&Part<QWidget>("list"), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(names(), QStringLiteral("un trois deux"));
  undo();

  events.SelectRow(1);
  EXPECT_EQ(events.ShownRow(), 1);
  Type("name", QStringLiteral("cinq"));
  Part<QLineEdit>("name").clear();
  events.SelectRow(0);
  EXPECT_EQ(events.ShownRow(), 1) << "a refused form is not left";
  EXPECT_FALSE(Note("nameNote").isEmpty());
  dialog->reject();
  EXPECT_TRUE(dialog->isVisible()) << "unsaved changes are asked for";
}

TEST_F(EditorTest, TheListIsFilteredAndSortedAndItsOrderStays) {
  Content().dayEvents = {Rule(kFixedDate, {.month = 12, .day = 25, .name = u"Noël"}),
                         Rule(kRomanEaster, {.isPublic = false, .day = 0, .name = u"Œufs"}),
                         Rule(kFixedDate, {.month = 1, .day = 6, .name = u"épiphanie"})};
  const CalendarContent before = Content();
  OpenEvents();
  CRowList& list = Part<CRowList>("list");
  const auto shown = [&] {
    QString all;
    for (int row = 0; row < list.model()->rowCount(); ++row)
      all += list.model()->index(row, 0).data().toString() + QLatin1Char(' ');
    return all;
  };
  list.sortByColumn(CEventList::kName, Qt::AscendingOrder);
  EXPECT_EQ(shown(), QStringLiteral("épiphanie Noël Œufs "));
  list.sortByColumn(CEventList::kDates, Qt::DescendingOrder);
  EXPECT_EQ(shown(), QStringLiteral("Noël Œufs épiphanie "));
  EXPECT_FALSE(Part<QPushButton>("up").isEnabled()) << "the order is not that of the calendar";
  for (const char* const text : {"NOEL", "decembre"}) {
    Part<QLineEdit>("filter").setText(QString::fromUtf8(text));
    EXPECT_EQ(shown(), QStringLiteral("Noël ")) << text;
  }
  Part<QLineEdit>("filter").clear();
  Part<QComboBox>("kinds").setCurrentIndex(2);
  EXPECT_EQ(shown(), QStringLiteral("Œufs "));
  EXPECT_EQ(list.model()->index(0, CEventList::kDates).data().toString(), QStringLiteral("dimanche 31 mars"));
  list.setCurrentIndex(list.model()->index(0, 0));
  Part<QSpinBox>("distance").setValue(1);
  EXPECT_TRUE(
      Part<QLabel>("fallsOn").text().contains(QStringLiteral("le 1er avril en 2024, le 21 avril en 2025")));
  Part<QPushButton>("apply").click();
  Save();
  CalendarContent expected = before;
  expected.dayEvents[1].day = 1;
  EXPECT_EQ(OnDisk(), expected);
}

TEST_F(EditorTest, ImportedHolidaysAreOneStep) {
  services.importHolidays = [](QWidget* /*parent*/, CalendarContent& content) {
    content.dayEvents = {Rule(kFixedDate, {.month = 1, .day = 1, .name = u"imported"})};
    content.vacations = {Period(20240706, 20240709)};
    return true;
  };
  Content().dayEvents = {Rule(kFixedDate, {.month = 5, .day = 1, .name = u"mine"}),
                         Rule(kFixedDate, {.month = 5, .day = 2})};
  const CalendarContent before = Content();
  for (const bool takesBack : {true, false}) {
    OpenEvents();
    Part<QPushButton>("importHolidays").click();
    EXPECT_EQ(Rows(), 1);
    if (takesBack) Part<QToolButton>("undo").click();
    Save();
    EXPECT_EQ(OnDisk().dayEvents.size(), takesBack ? 2U : 1U);
    EXPECT_EQ(OnDisk().vacations.size(), takesBack ? 0U : 1U);
  }
}

}  // namespace
}  // namespace orbisol
