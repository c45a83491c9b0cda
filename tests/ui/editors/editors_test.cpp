// Events and periods are typed, listed and changed.

#include "tests/ui/editors/editors_fixture.h"

namespace orbisol {
namespace {

TEST_F(EditorTest, EveryKindOfEventIsTypedSavedReadBackAndSeen) {
  // The typed texts as field=text, the rule, and its day, the only one of its month.
  const std::tuple<const char*, DayEvent, PackedDate> kRows[] = {
      {"day=14 month=juil", Rule(kFixedDate, {.month = 7, .day = 14}), 20240714},
      {"distance=39", Rule(kRomanEaster, {.day = 39}), 20240509},
      {"distance=-2", Rule(kOrthodoxEaster, {.day = -2}), 20240503},
      {"ordinal=q weekday=jeu month=nov since=01/01/1941",
       Rule(kNthWeekday, {.month = 11, .weekday = 4, .weeknum = 4, .from = 19410101}), 20241128},
      {"weekday=mer day=22 month=nov",
       Rule(kWeekdayBefore, {.month = 11, .day = 22, .weekday = 3, .weeknum = 1}), 20241120},
      {"weekday=sam day=20 month=juin until=31/12/2030",
       Rule(kWeekdayAfter, {.month = 6, .day = 20, .weekday = 6, .weeknum = 1, .to = 20301231}), 20240622},
      {"day=25 month=d", Rule(kBankHoliday, {.month = 12, .day = 25}), 20211227},
      {"day=1 month=jan", Rule(kExceptSunday, {.month = 1, .day = 1}), 20230102},
  };
  for (const bool isPublic : {false, true}) {
    for (const auto& [typed, plain, ymd] : kRows) {
      SCOPED_TRACE(typed);
      Content() = {};
      OpenEvents();
      Type("name", QStringLiteral("x"));
      Type("type", {});
      for (int kind = 0; kind < static_cast<int>(plain.type); ++kind) Press(Qt::Key_Down);
      for (const QString& entry : QString::fromUtf8(typed).split(u' '))
        Type(qPrintable(entry.section(u'=', 0, 0)), entry.section(u'=', 1));
      if (isPublic) {
        Type("isPublic", QStringLiteral(" "));
        Type("name", QStringLiteral("x"));
      }
      Press(Qt::Key_Return);
      ASSERT_EQ(Rows(), 1) << "Enter adds the event: "
                           << qPrintable(Note("nameNote") + Note("dayNote") + Note("untilNote"));
      Press(Qt::Key_Return);
      EXPECT_EQ(dialog->result(), QDialog::Accepted) << "Enter again saves";
      DayEvent rule = plain;
      rule.isPublic = isPublic;
      EXPECT_EQ(Saved().dayEvents, std::vector{rule});
      EXPECT_EQ(Content(), Saved());
      const auto [year, month, day] = Unpack(ymd);
      EXPECT_EQ(Marked(year, month, isPublic ? kHolidayMark : kEventMark), std::vector{day});
    }
  }
}

// Somebody without a mouse finds the fields of a kind from top to bottom, and no other.
TEST_F(EditorTest, TabGoesThroughTheFieldsOfAKindInTheirOrder) {
  const auto order = [&](const char* first) {
    Part<QWidget>(first).setFocus();
    QString names;
    for (int i = 0; i < 20 && dialog->focusWidget() != &Part<QWidget>("add"); ++i) {
      names += dialog->focusWidget()->objectName() + QLatin1Char(' ');
      Press(Qt::Key_Tab);
    }
    return names;
  };
  constexpr const char* kFields[] = {
      "day month",         "distance",          "distance",  "ordinal weekday month",
      "weekday day month", "weekday day month", "day month", "day month"};
  OpenEvents();
  for (int kind = 0; kind < 8; ++kind) {
    Part<QComboBox>("type").setCurrentIndex(kind);
    EXPECT_EQ(order("name"), QStringLiteral("name isPublic type %1 since until ").arg(kFields[kind]));
    EXPECT_TRUE(Part<QComboBox>("type").accessibleDescription() == Part<QComboBox>("type").currentText());
  }
  OpenVacations();
  EXPECT_EQ(order("title"), QStringLiteral("title from to "));
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
  EXPECT_TRUE(Part<QLabel>("length").text().contains(QStringLiteral("Chevauche «\u00A0Mer\u00A0»")));
  Save();  // takes over what was typed
  EXPECT_EQ(dialog->result(), QDialog::Accepted);
  EXPECT_EQ(Saved().vacations, (std::vector{Period(20240706, 20240709, u"Mer"), Period(20240708, 20240710)}));
  EXPECT_EQ(Marked(2024, 7, kVacationMark), (std::vector{6, 7, 8, 9, 10}));

  OpenVacations(-451220, -440110);  // over the end of a year before the era
  EXPECT_TRUE(
      Part<CRowList>("list").model()->index(0, 4).data().toString().contains(QStringLiteral("chevauche")));
  Save();
  EXPECT_EQ(Saved().vacations.size(), 4U);
  OpenVacations();
  EXPECT_EQ(Rows(), 3) << "its two records are one row";
  static_cast<CVacationsDialog&>(*dialog).SelectRow(2);
  EXPECT_FALSE(Part<QLabel>("length").text().contains(QStringLiteral("Chevauche"))) << "but itself";
  Part<QLineEdit>("filter").setText(QStringLiteral("x"));
  EXPECT_EQ(Part<CRowList>("list").accessibleDescription(),
            QStringLiteral("Aucune période ne correspond au filtre."));
}

TEST_F(EditorTest, StepsAreTakenBackAndMadeAgain) {
  for (const char16_t* const name : {u"un", u"deux", u"trois"})
    Content().dayEvents.push_back(EveryYear(5, 14, name));
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
  EXPECT_EQ(events.ShownRow(), 0);
  QTest::keyClick(&Part<QWidget>("name"), Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(names(), QStringLiteral("un trois deux")) << "a field without anything typed leaves the key";
  EXPECT_EQ(events.ShownRow(), 1) << "the row that was touched is shown";
  undo();
  EXPECT_EQ(names(), QStringLiteral("un deux trois"));
  EXPECT_FALSE(Part<QToolButton>("undo").isEnabled());
  QTest::keyClick(&Part<QWidget>("list"), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(names(), QStringLiteral("un trois deux"));
  undo();

  events.SelectRow(1);
  EXPECT_EQ(events.ShownRow(), 1);
  Type("name", QStringLiteral("cinq"));
  undo();
  EXPECT_EQ(Part<QLineEdit>("name").text(), QStringLiteral("deux")) << "first what the form was changed to";
  EXPECT_EQ(names(), QStringLiteral("un deux trois"));
  Part<QLineEdit>("name").setText(QStringLiteral("  "));
  Part<QPushButton>("apply").click();
  EXPECT_EQ(Part<QLineEdit>("name").text(), QStringLiteral("  ")) << "what was typed stays";
  events.SelectRow(0);
  EXPECT_EQ(events.ShownRow(), 1) << "a refused form is not left";
  EXPECT_FALSE(Note("nameNote").isEmpty());
}

TEST_F(EditorTest, TheListIsFilteredAndSortedAndItsOrderStays) {
  Content().dayEvents = {EveryYear(12, 25, u"Noël"),
                         Rule(kRomanEaster, {.isPublic = false, .day = 0, .name = u"Œufs"}),
                         EveryYear(1, 6, u"épiphanie")};
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
  static_cast<CEventsDialog&>(*dialog).SelectRow(2);
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
  EXPECT_EQ(Saved(), expected);

  OpenEvents();
  Part<QLineEdit>("filter").setText(QStringLiteral("noel"));
  Part<QLineEdit>("name").setText(QStringLiteral("Toussaint"));
  Part<QPushButton>("add").click();
  EXPECT_EQ(Rows(), 4) << "what was added is seen";
}

TEST_F(EditorTest, ImportedHolidaysAreOneStep) {
  services.importHolidays = [](QWidget* /*parent*/, CalendarContent& content) {
    content = {{EveryYear(1, 1, u"imported")}, {Period(20240706, 20240709)}};
    return true;
  };
  Content().dayEvents = {EveryYear(5, 1, u"mine"), EveryYear(5, 2, u"mine too")};
  for (const bool takesBack : {true, false}) {
    OpenEvents();
    Part<QPushButton>("importHolidays").click();
    EXPECT_EQ(Rows(), 1);
    if (takesBack) Part<QToolButton>("undo").click();
    Save();
    EXPECT_EQ(Saved().dayEvents.size(), takesBack ? 2U : 1U);
    EXPECT_EQ(Saved().vacations.size(), takesBack ? 0U : 1U);
  }
}

}  // namespace
}  // namespace orbisol
