#include "tests/ui/calendars/calendars_fixture.h"

namespace orbisol {
namespace {

constexpr char kMaison[] = "Maison /user/Maison.xml Maison mine";

TEST_F(CalendarsTest, WhereThisOneCannotBeSavedNoSwitchHappens) {
  Edit(u"unsaved");
  files.failingWrites = {u"/user/Maison.xml"};
  const auto expectUnsaved = [&] {
    EXPECT_EQ(InUse(), "Maison /user/Maison.xml Maison unsaved");
    EXPECT_TRUE(Display().changed);
    EXPECT_EQ(OnDisk(), "Maison=mine Travail=work ");
  };
  EXPECT_FALSE(actions.Open(u"Travail"));
  expectUnsaved();
  EXPECT_FALSE(actions.Create(u"Neuf", false));
  expectUnsaved();
  messages.answers = {0};  // under a free name
  EXPECT_TRUE(actions.Open(u"Travail"));
  EXPECT_EQ(OnDisk(), "Maison=mine Maison (2)=unsaved Travail=work ");
}

TEST_F(CalendarsTest, ACalendarThatCannotBeReadIsNotOpened) {
  const auto expectStays = [&](const char* name, const char* words) {
    EXPECT_FALSE(actions.Open(FromUtf8(name)));
    ExpectSaid(words);
    EXPECT_EQ(InUse(), kMaison);
  };
  expectStays("Parti", "n'existe plus");
  files.unreadable = {u"/user/Travail.xml"};
  expectStays("Travail", "ne peut pas être lu");
  files.unreadable.clear();
  store.readOnly = true;
  EXPECT_TRUE(actions.Open(u"Travail"));
  ExpectSaid("Au prochain démarrage");
}

TEST_F(CalendarsTest, ANewCalendarBeginsEmptyOrKeepsTheEvents) {
  for (const bool keepsEvents : {false, true}) {
    Edit(u"unsaved");
    Display().fontWeight = 700;
    Rules().ApplyGregorianStart(17520914);
    EXPECT_TRUE(actions.Create(u"Neuf", keepsEvents));
    EXPECT_EQ(InUse(), std::string("Neuf /user/Neuf.xml Neuf ") + (keepsEvents ? "unsaved" : ""));
    EXPECT_EQ(OnDisk(),
              std::string("Maison=unsaved Neuf=") + (keepsEvents ? "unsaved" : "") + " Travail=work ");
    EXPECT_EQ(Display().fontWeight, keepsEvents ? 700 : 400);
    EXPECT_EQ(Rules().startGregorian, keepsEvents ? 17520914 : kRomanReform);
    CalendarFile old;
    calendars.Load(u"Maison", old);
    EXPECT_EQ(old.rules.startGregorian, 17520914) << "the old one is saved as it was";
    EXPECT_FALSE(actions.Create(u"Travail", false)) << "nothing is overwritten";
    ExpectSaid("existe déjà");
    EXPECT_TRUE(actions.Open(u"Maison"));
    calendars.Delete(u"Neuf");
  }
}

TEST_F(CalendarsTest, RenamingTakesFileVersionsAndKeyAlong) {
  Edit(u"next");
  EXPECT_TRUE(actions.Open(u"Travail"));  // a version of "Maison"
  EXPECT_FALSE(Display().changed);
  for (const char16_t* backup : {u"Maison.xml.bak", u"Maison.xml.bak.1", u"maison.xml.bak.1"})
    files.Put(std::u16string(u"/user/") + backup, ToUtf8(backup));
  EXPECT_TRUE(actions.Rename(u"Maison", u"maison"));
  EXPECT_EQ(files.files[u"/user/maison.xml.bak"].bytes, "Maison.xml.bak");
  EXPECT_FALSE(files.Exists(u"/user/Maison.xml.bak"));
  EXPECT_EQ(files.files[u"/user/maison.xml.bak.1"].bytes, "maison.xml.bak.1") << "nothing is overwritten";
  EXPECT_EQ(files.files[u"/user/Maison.xml.bak.1"].bytes, "Maison.xml.bak.1");
  EXPECT_EQ(InUse(), "Travail /user/Travail.xml Travail work");
  EXPECT_EQ(OnDisk(), "maison=next maison.bak= Travail=work ");
  EXPECT_EQ(Versions(u"maison"), "mine ");

  Edit(u"unsaved");
  EXPECT_TRUE(actions.Rename(u"Travail", u"Bureau 🎂"));
  EXPECT_EQ(InUse(), "Bureau 🎂 /user/Bureau 🎂.xml Bureau 🎂 unsaved");
  EXPECT_TRUE(Display().changed);
  EXPECT_EQ(OnDisk(), "Bureau 🎂=work maison=next maison.bak= ");

  store.readOnly = true;
  EXPECT_FALSE(actions.Rename(u"Bureau 🎂", u"Travail"));
  ExpectSaid("n'a pas été renommé");
  EXPECT_EQ(InUse(), "Bureau 🎂 /user/Bureau 🎂.xml Bureau 🎂 unsaved");
  EXPECT_EQ(OnDisk(), "Bureau 🎂=work maison=next maison.bak= ");
  store.readOnly = false;
  store.isUnsure = true;
  EXPECT_FALSE(actions.Rename(u"Bureau 🎂", u"Travail"));
  EXPECT_EQ(InUse(), "Bureau 🎂 /user/Bureau 🎂.xml Travail unsaved");
  EXPECT_EQ(OnDisk(), "Bureau 🎂=work maison=next maison.bak= Travail=work ") << "the key's calendar is there";
  store.readOnly = store.isUnsure = false;
  calendars.Delete(u"Travail");
  files.files.erase(u"/user/Bureau 🎂.xml");
  EXPECT_TRUE(actions.Rename(u"Bureau 🎂", u"Travail")) << "without a file it is saved first";
  EXPECT_EQ(OnDisk(), "maison=next maison.bak= Travail=unsaved ");
  files.failingWrites = {u"/user/Neuf.xml"};
  EXPECT_FALSE(actions.Rename(u"Travail", u"Neuf"));
}

TEST_F(CalendarsTest, ACalendarGoesToTheTrashWithItsVersionsAfterAQuestion) {
  calendars.KeepVersion(u"Travail", CalendarWith(u"older"));
  EXPECT_FALSE(actions.Delete(u"Maison"));
  EXPECT_EQ(messages.beeps, 1) << "it is in use";
  EXPECT_FALSE(actions.Delete(u"Travail"));
  ExpectSaid("Ses versions précédentes y vont avec lui");
  EXPECT_EQ(OnDisk(), "Maison=mine Travail=work ");
  messages.answers = {0};
  for (const char16_t* backup : {u"/user/Travail.xml.bak", u"/user/Travail.xml.bak.1"}) files.Put(backup, "");
  EXPECT_TRUE(actions.Delete(u"Travail"));
  EXPECT_EQ(files.trash.size(), 4u) << "the calendar, its version and its backups";
  EXPECT_EQ(files.files.size(), 1u) << "the other calendar";
  EXPECT_EQ(Versions(u"Travail"), "");
  for (const auto& [path, file] : files.trash) files.files[path] = file;  // a file manager puts them back
  EXPECT_EQ(OnDisk(), "Maison=mine Travail=work Travail.bak= ");
  EXPECT_EQ(Versions(u"Travail"), "older ");
  files.trashFails = true;
  messages.answers = {0};
  EXPECT_FALSE(actions.Delete(u"Travail"));
  ExpectSaid("n'a pas pu être mis à la corbeille");
}

TEST_F(CalendarsTest, ACopyIsWrittenElsewhere) {
  Edit(u"unsaved");
  EXPECT_TRUE(actions.Export(u"Maison", u"/home/copie.xml"));
  EXPECT_TRUE(actions.Export(u"Travail", u"/home/Travail.xml"));
  EXPECT_EQ(ReadCalendar(files.files[u"/home/copie.xml"].bytes).content, Content()) << "as it is in force";
  EXPECT_EQ(files.files[u"/home/Travail.xml"].bytes, files.files[u"/user/Travail.xml"].bytes);
  EXPECT_FALSE(actions.Export(u"Maison", u"/user/Travail.xml"));
  ExpectSaid("Ce dossier est celui des calendriers");
  files.failingWrites = {u"/home/x.xml"};
  EXPECT_FALSE(actions.Export(u"Maison", u"/home/x.xml"));
  ExpectSaid("/home/x.xml");
  EXPECT_EQ(OnDisk(), "Maison=mine Travail=work ");
}

TEST_F(CalendarsTest, AVersionReplacesNothingThatWasNotSeen) {
  calendars.KeepVersion(u"Travail", CalendarWith(u"older"));
  actions.StateOf(u"Travail");
  const CalendarVersion version = calendars.Versions().List(u"Travail").at(0);
  Put(u"Travail", u"theirs");
  EXPECT_FALSE(actions.Restore(u"Travail", version));
  ExpectSaid("modifié entre-temps par un autre programme");
  files.failingWrites = {u"/user/Travail.xml"};
  actions.StateOf(u"Travail");
  EXPECT_FALSE(actions.Restore(u"Travail", version));
  ExpectSaid("n'a pas été restaurée");
  EXPECT_FALSE(actions.Restore(u"Travail", {}));
  ExpectSaid("n'existe plus");
  EXPECT_EQ(OnDisk(), "Maison=mine Travail=theirs ");

  Edit(u"unsaved");
  calendars.KeepVersion(u"Maison", CalendarWith(u"older"));
  Put(u"Maison", u"theirs");
  EXPECT_FALSE(actions.Restore(u"Maison", calendars.Versions().List(u"Maison").at(0)));
  ExpectSaid("a été modifié par un autre programme");
  EXPECT_EQ(InUse(), "Maison /user/Maison.xml Maison unsaved");
  files.failingWrites = {u"/versions/Maison"};
  EXPECT_FALSE(actions.Restore(u"Maison", calendars.Versions().List(u"Maison").at(1)));
  ExpectSaid("n'ont pas pu être conservées");
  EXPECT_EQ(InUse(), "Maison /user/Maison.xml Maison unsaved");
}

}  // namespace
}  // namespace orbisol
