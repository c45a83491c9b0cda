// Nothing that was typed is lost: what is refused stays in its field, what cannot be saved in the dialog.

#include "tests/ui/editors/editors_fixture.h"

namespace orbisol {
namespace {

TEST_F(EditorTest, AnImpossibleDateIsSaidBelowItsFieldAndIsNotForgotten) {
  Content().dayEvents = {EveryYear(5, 1, u"mine")};
  CEventsDialog& events = OpenEvents();
  Part<QPushButton>("add").click();
  EXPECT_FALSE(Note("nameNote").isEmpty()) << "an event has a name";
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
    Content().dayEvents = {EveryYear(5, 1, u"mine")};
    CEventsDialog& events = OpenEvents(20240514);
    Part<QLineEdit>("name").setText(QStringLiteral("begun"));
    events.SelectRow(0);
    EXPECT_EQ(Part<QLineEdit>("name").text(), QStringLiteral("mine"));
    EXPECT_EQ(events.ShownRow(), 0);
  };
  begin();
  Part<QPushButton>("create").click();
  EXPECT_EQ(Part<QLineEdit>("name").text(), QStringLiteral("begun"));
  messages.answers = {1};
  dialog->reject();
  EXPECT_FALSE(dialog->isVisible()) << "given up at the user's wish";
  begin();
  dialog->reject();
  EXPECT_EQ(messages.questions.size(), 2U) << "it is asked for";
  EXPECT_TRUE(dialog->isVisible()) << "a question that is closed keeps the dialog open";
  Save();
  EXPECT_EQ(Saved().dayEvents.size(), 2U);

  OpenVacations(20240706, 20240709);
  Part<QPushButton>("add").click();
  EXPECT_EQ(Rows(), 1);
  OpenVacations(20240801, 20240809);  // drawn over, and saved from another row
  Save();
  OpenVacations(20240901, 20240909);
  static_cast<CVacationsDialog&>(*dialog).SelectRow(0);
  Save();
  EXPECT_EQ(Saved().vacations, (std::vector{Period(20240801, 20240809), Period(20240901, 20240909)}));
}

TEST_F(EditorTest, TheEndOfASessionAsksNothingAndLosesNothing) {
  const std::tuple<const char*, const char16_t*, bool, const char*, const char*> kRows[] = {
      {"nothing in the way", nullptr, false, "Calendar=typed ", "Calendar"},
      {"somebody else's change", nullptr, true, "Calendar=theirs Calendar (2)=typed ", "Calendar (2)"},
      {"a file that cannot be written", u"/user/Calendar.xml", false, "Calendar= Calendar (2)=typed ",
       "Calendar (2)"},
  };
  for (const auto& [what, failing, isChanged, onDisk, name] : kRows) {
    SCOPED_TRACE(what);
    files.files.clear();
    Display().calendarName.Set(u"Calendar");
    calendars.Save(u"Calendar", {}, IfChanged::kOverwrite);
    Content() = {};
    OpenEvents(20240514);
    KeepAllUnsaved();
    EXPECT_EQ(OnDisk(), "Calendar= ") << "there is nothing to keep";
    if (isChanged) Put(u"Calendar", u"theirs");
    if (failing != nullptr) files.failingWrites = {failing};
    Part<QLineEdit>("name").setText(QStringLiteral("typed"));
    KeepAllUnsaved();
    EXPECT_EQ(OnDisk(), onDisk);
    EXPECT_EQ(ToUtf8(Display().calendarName.View()), name);
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
  EXPECT_TRUE(Saved().dayEvents.empty());
  files.failingWrites.clear();
  Put(u"Calendar", u"theirs");
  messages.answers = {1};  // reload
  Save();
  EXPECT_TRUE(dialog->isVisible());
  EXPECT_EQ(static_cast<CEventsDialog&>(*dialog).Events().NameOf(0), QStringLiteral("theirs"));
  EXPECT_EQ(Content(), CalendarWith(u"theirs").content);
  EXPECT_EQ(Versions(u"Calendar"), "mine ") << "what was typed is a version";
  dialog->reject();
  EXPECT_FALSE(dialog->isVisible()) << "nothing is left to ask about";
}

}  // namespace
}  // namespace orbisol
