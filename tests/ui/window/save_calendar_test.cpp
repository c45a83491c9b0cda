#include "ui/window/save_calendar.h"

#include <gtest/gtest.h>

#include "tests/support/calendar_builder.h"
#include "tests/support/memory_files.h"
#include "tests/support/memory_store.h"
#include "tests/support/spy_messages.h"

namespace orbisol {
namespace {

using namespace Qt::StringLiterals;

class SaveCalendarTest : public testing::Test {
 protected:
  SaveCalendarTest() : m_scope(messages) {
    Put(u"Calendar", u"before");
    display = ReadSettings(store, calendars, {files, kMemoryFolders}, {u"fr", u"FR"}, {}).display;
    display.changed = true;
  }

  void Put(const std::u16string& name, std::u16string_view rule) {
    files.Put(u"/user/" + name + u".xml", BytesWith(rule));
  }
  SavedFromWindow Save(std::optional<std::u16string_view> newName = {}) {
    return SaveCalendarFromWindow(nullptr, {store, calendars}, display, {}, CalendarWith(u"mine").content,
                                  newName);
  }
  // Returns the rule of each file, in the order of their names: "Calendar=mine Calendar (2)=theirs ".
  std::string OnDisk() {
    std::u16string all;
    for (const auto& [path, file] : files.files) {
      if (!path.starts_with(u"/user/")) continue;
      const CalendarContent content = ReadCalendar(file.bytes).content;
      all += path.substr(6) + u"=" + std::u16string(content.dayEvents.at(0).name.View()) + u" ";
    }
    return ToUtf8(all);
  }
  void ExpectShown(const QString& words) {
    ASSERT_FALSE(messages.shown.isEmpty());
    EXPECT_TRUE(messages.shown.last().contains(words)) << qPrintable(messages.shown.last());
  }

  CMemoryFiles files;
  CCalendarStore calendars{files, kMemoryFolders};
  CMemoryStore store{"\"CalendarName\"=\"Calendar\"\n"};
  DisplaySettings display;
  SpyMessages messages;

 private:
  ScopedMessages m_scope;
};

TEST_F(SaveCalendarTest, AFileThatNobodyTouchedIsReplacedWithoutAWord) {
  const SavedFromWindow saved = Save();
  EXPECT_EQ(saved.end, SaveEnd::kSaved);
  EXPECT_TRUE(saved.keyStored && !display.changed && messages.shown.isEmpty());
  EXPECT_EQ(OnDisk(), "Calendar.xml=mine ");
}

TEST_F(SaveCalendarTest, WhereSomebodyElseChangedTheFileTheUserDecides) {
  const struct {
    std::vector<int> answers;
    SaveEnd end;
    const char *onDisk, *name;
  } kRows[] = {
      {{}, SaveEnd::kUnsaved, "Calendar.xml=theirs ", "Calendar"},
      {{0}, SaveEnd::kSaved, "Calendar (2).xml=mine Calendar.xml=theirs ", "Calendar (2)"},
      {{2}, SaveEnd::kSaved, "Calendar.xml=mine Calendar.xml.bak=theirs ", "Calendar"},
      {{1}, SaveEnd::kReloaded, "Calendar.xml=theirs ", "Calendar"},
  };
  for (const auto& row : kRows) {
    SCOPED_TRACE(row.onDisk);
    files.files.clear();
    display.changed = true;
    display.calendarName.Set(u"Calendar");
    Put(u"Calendar", u"theirs");
    messages.answers = row.answers;
    const SavedFromWindow saved = Save();
    EXPECT_EQ(saved.end, row.end);
    EXPECT_EQ(OnDisk(), row.onDisk);
    EXPECT_EQ(ToUtf8(display.calendarName.View()), row.name);
    EXPECT_EQ(display.changed, row.end != SaveEnd::kSaved);
    EXPECT_EQ(saved.reloaded.has_value(), row.end == SaveEnd::kReloaded);
    EXPECT_EQ(saved.reloaded.value_or(CalendarWith(u"theirs")), CalendarWith(u"theirs"));
    EXPECT_EQ(messages.buttons, QStringList({u"Garder les deux"_s, u"Recharger"_s, u"Remplacer"_s}));
    ExpectShown(u"Le fichier /user/Calendar.xml contient ces autres modifications"_s);
    ExpectShown(u"« Calendar (2) »"_s);
  }
}

TEST_F(SaveCalendarTest, WhatAReloadGivesUpIsKeptAsAVersion) {
  Put(u"Calendar", u"theirs");
  messages.answers = {1};
  ASSERT_EQ(Save().end, SaveEnd::kReloaded);
  const std::vector<CalendarVersion> kept = calendars.Versions().List(u"Calendar");
  ASSERT_EQ(kept.size(), 1u);
  EXPECT_EQ(ReadCalendar(*calendars.Versions().Read(u"Calendar", kept[0])).content,
            CalendarWith(u"mine").content);

  Put(u"Calendar", u"newer");
  files.failingWrites = {u"/versions/Calendar"};
  messages.answers = {1, 0};
  EXPECT_EQ(Save().end, SaveEnd::kSaved);
  EXPECT_EQ(messages.buttons, QStringList({u"Garder les deux"_s, u"Recharger quand même"_s}));
  EXPECT_EQ(OnDisk(), "Calendar (2).xml=mine Calendar.xml=newer ");
}

TEST_F(SaveCalendarTest, WhereTheFileCannotBeWrittenTheUserSavesUnderAnotherName) {
  files.failingWrites = {u"/user/Calendar.xml"};
  EXPECT_EQ(Save().end, SaveEnd::kUnsaved);
  EXPECT_EQ(OnDisk(), "Calendar.xml=before ");
  EXPECT_TRUE(display.changed);
  ExpectShown(u"n'a pas été enregistré"_s);
  ExpectShown(u"Le fichier /user/Calendar.xml est resté tel qu'il était"_s);
  EXPECT_EQ(messages.buttons, QStringList({u"Enregistrer sous « Calendar (2) »"_s, u"Réessayer"_s}));

  messages.answers = {1, 0};  // again, in vain, then under the other name
  EXPECT_EQ(Save(u"Famille").end, SaveEnd::kSaved);
  EXPECT_EQ(OnDisk(), "Calendar (2).xml=mine Calendar.xml=before ");
  EXPECT_EQ(display.calendarName.View(), u"Famille") << "only then the program leaves the calendar";

  files.files.clear();
  files.failingWrites = {u"/user/Famille.xml"};
  EXPECT_EQ(Save().end, SaveEnd::kUnsaved);
  ExpectShown(u"Le fichier /user/Famille.xml n'existe pas"_s);
}

TEST_F(SaveCalendarTest, WhatIsWrittenAndNotConfirmedIsSaidSo) {
  files.syncFails = true;
  EXPECT_EQ(Save().end, SaveEnd::kSaved);
  EXPECT_EQ(OnDisk(), "Calendar.xml=mine ");
  EXPECT_TRUE(display.changed) << "the next save writes it again";
  ExpectShown(u"Le fichier /user/Calendar.xml contient vos modifications"_s);

  Put(u"Calendar", u"theirs");
  messages.answers = {0};
  EXPECT_EQ(Save().end, SaveEnd::kSaved);
  ExpectShown(u"Le fichier /user/Calendar (2).xml contient vos modifications"_s);
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
  EXPECT_EQ(OnDisk(), "Calendar (2).xml=mine Calendar.xml=newer Calendar.xml.bak=theirs ");
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
  EXPECT_EQ(OnDisk(), "Calendar (2).xml=mine Calendar.xml=newest Calendar.xml.bak=theirs ");

  Put(u"Calendar", u"theirs");
  messages.whileAsking = [&] { files.files.erase(u"/user/Calendar.xml"); };
  messages.answers = {1};
  EXPECT_EQ(Save().end, SaveEnd::kSaved) << "there is nothing to reload any more";
}

}  // namespace
}  // namespace orbisol
