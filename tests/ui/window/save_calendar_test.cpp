#include "ui/window/save_calendar.h"

#include "tests/support/calendar_folder_test.h"

namespace orbisol {
namespace {

using namespace Qt::StringLiterals;

class SaveCalendarTest : public CalendarFolderTest {
 protected:
  SaveCalendarTest() {
    Put(u"Calendar", u"before");
    display = ReadSettings(store, calendars, publicCalendars, {u"fr", u"FR"}, {}).display;
    display.changed = true;
  }

  SavedFromWindow Save(std::optional<std::u16string_view> newName = {}) {
    return SaveCalendarFromWindow(nullptr, {store, calendars}, display, {}, CalendarWith(u"mine").content,
                                  newName);
  }

  DisplaySettings display;
};

TEST_F(SaveCalendarTest, AFileThatNobodyTouchedIsReplacedWithoutAWord) {
  const SavedFromWindow saved = Save();
  EXPECT_EQ(saved.end, SaveEnd::kSaved);
  EXPECT_TRUE(saved.keyStored && !display.changed && messages.shown.isEmpty());
  EXPECT_EQ(OnDisk(), "Calendar=mine ");
  store.readOnly = true;
  EXPECT_FALSE(Save(u"Famille").keyStored);
  EXPECT_EQ(display.calendarPath, u"/user/Famille.xml") << "the session goes on under the new name";
}

TEST_F(SaveCalendarTest, WhereSomebodyElseChangedTheFileTheUserDecides) {
  const std::tuple<std::vector<int>, SaveEnd, const char*, const char*> kRows[] = {
      {{}, SaveEnd::kUnsaved, "Calendar=theirs ", "Calendar"},
      {{0}, SaveEnd::kSaved, "Calendar=theirs Calendar (2)=mine ", "Calendar (2)"},
      {{2}, SaveEnd::kSaved, "Calendar=mine Calendar.bak=theirs ", "Calendar"},
      {{1}, SaveEnd::kReloaded, "Calendar=theirs ", "Calendar"},
  };
  for (const auto& [answers, end, onDisk, name] : kRows) {
    SCOPED_TRACE(onDisk);
    files.files.clear();
    display.changed = true;
    display.calendarName.Set(u"Calendar");
    Put(u"Calendar", u"theirs");
    messages.answers = answers;
    store.written.clear();
    const SavedFromWindow saved = Save();
    EXPECT_EQ(saved.end, end);
    EXPECT_EQ(store.written.empty(), end != SaveEnd::kSaved);
    EXPECT_EQ(OnDisk(), onDisk);
    EXPECT_EQ(ToUtf8(display.calendarName.View()), name);
    EXPECT_EQ(display.changed, end != SaveEnd::kSaved);
    EXPECT_EQ(saved.reloaded.has_value(), end == SaveEnd::kReloaded);
    EXPECT_EQ(saved.reloaded.value_or(CalendarWith(u"theirs")), CalendarWith(u"theirs"));
    EXPECT_EQ(messages.buttons, QStringList({u"Garder les deux"_s, u"Recharger"_s, u"Remplacer"_s}));
    ExpectSaid("Le fichier /user/Calendar.xml contient ces autres modifications");
    ExpectSaid("«\u00A0Calendar (2)\u00A0»");
  }
}

TEST_F(SaveCalendarTest, WhatAReloadGivesUpIsKeptAsAVersion) {
  Put(u"Calendar", u"theirs");
  messages.answers = {1};
  ASSERT_EQ(Save().end, SaveEnd::kReloaded);
  EXPECT_EQ(Versions(u"Calendar"), "mine ");

  Put(u"Calendar", u"newer");
  files.failingWrites = {u"/versions/Calendar"};
  messages.answers = {1, 0};
  EXPECT_EQ(Save().end, SaveEnd::kSaved);
  EXPECT_EQ(messages.buttons, QStringList({u"Garder les deux"_s, u"Recharger quand même"_s}));
  EXPECT_EQ(OnDisk(), "Calendar=newer Calendar (2)=mine ");
}

TEST_F(SaveCalendarTest, WhereTheFileCannotBeWrittenTheUserSavesUnderAnotherName) {
  files.failingWrites = {u"/user/Calendar.xml"};
  const SavedFromWindow failed = Save();
  EXPECT_EQ(failed.end, SaveEnd::kUnsaved);
  EXPECT_TRUE(failed.keyStored) << "the switches are stored all the same";
  EXPECT_EQ(OnDisk(), "Calendar=before ");
  EXPECT_TRUE(display.changed);
  ExpectSaid("n'a pas été enregistré");
  ExpectSaid("Le fichier /user/Calendar.xml est resté tel qu'il était");
  EXPECT_EQ(messages.buttons,
            QStringList({u"Enregistrer sous «\u00A0Calendar (2)\u00A0»"_s, u"Réessayer"_s}));

  messages.answers = {1, 0};  // again, in vain, then under the other name
  EXPECT_EQ(Save(u"Famille").end, SaveEnd::kSaved);
  EXPECT_EQ(OnDisk(), "Calendar=before Calendar (2)=mine ");
  EXPECT_EQ(display.calendarName.View(), u"Famille") << "only then the program leaves the calendar";

  files.files.clear();
  files.failingWrites = {u"/user/Famille.xml"};
  EXPECT_EQ(Save().end, SaveEnd::kUnsaved);
  ExpectSaid("Le fichier /user/Famille.xml n'existe pas");
}

TEST_F(SaveCalendarTest, WhatIsWrittenAndNotConfirmedIsSaidSo) {
  files.syncFails = true;
  EXPECT_EQ(Save().end, SaveEnd::kSaved);
  EXPECT_EQ(OnDisk(), "Calendar=mine ");
  EXPECT_TRUE(display.changed) << "the next save writes it again";
  ExpectSaid("Le fichier /user/Calendar.xml contient vos modifications");

  Put(u"Calendar", u"theirs");
  messages.answers = {0};
  EXPECT_EQ(Save().end, SaveEnd::kSaved);
  ExpectSaid("Le fichier /user/Calendar (2).xml contient vos modifications");
}

// Each answer applies to the file as it is on the disk by then.
TEST_F(SaveCalendarTest, WhatChangesWhileTheUserThinksIsNotOverwritten) {
  Put(u"Calendar", u"theirs");
  int asked = 0;
  messages.whileAsking = [&] {
    if (++asked == 1) files.beforeReplace = [&] { Put(u"Calendar", u"newer"); };
  };
  messages.answers = {2, 0};
  EXPECT_EQ(Save().end, SaveEnd::kSaved);
  EXPECT_EQ(asked, 2);
  EXPECT_EQ(OnDisk(), "Calendar=newer Calendar.bak=theirs Calendar (2)=mine ");
  display.calendarName.Set(u"Calendar");
  CalendarFile newer;
  calendars.Load(u"Calendar", newer);
  files.failingWrites = {u"/user/Calendar.xml"};
  messages.whileAsking = [&] {
    files.failingWrites.clear();
    Put(u"Calendar", u"newest");
  };
  messages.answers = {1};
  EXPECT_EQ(Save().end, SaveEnd::kUnsaved) << "another try is no leave to overwrite";
  EXPECT_EQ(OnDisk(), "Calendar=newest Calendar.bak=theirs Calendar (2)=mine ");

  Put(u"Calendar", u"theirs");
  messages.whileAsking = [&] { files.files.erase(u"/user/Calendar.xml"); };
  messages.answers = {1};
  EXPECT_EQ(Save().end, SaveEnd::kSaved) << "there is nothing to reload any more";
}

}  // namespace
}  // namespace orbisol
