// The choice of a calendar, its dialogs, and the import of holidays: empty and filled, in the usual font and
// in one a third larger.
#include <QApplication>
#include <QCheckBox>
#include <QDir>
#include <QFile>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QListWidget>

#include "content/calendar_content.h"
#include "tests/support/calendar_builder.h"
#include "tests/support/memory_files.h"
#include "tests/support/memory_store.h"
#include "tools/screenshot/pictures.h"
#include "ui/calendars/choose_calendar_dlg.h"
#include "ui/calendars/rename_calendar_dlg.h"
#include "ui/calendars/versions_dlg.h"
#include "ui/editors/import_holidays_dlg.h"

namespace orbisol {
namespace {

constexpr double kLarge = 4.0 / 3;

struct Desk {
  CMemoryFiles files;
  CMemoryStore store{"\"CalendarName\"=\"Famille\"\n"};
  CCalendarStore calendars{files, kMemoryFolders};
  CPublicCalendars publicCalendars{files, kMemoryFolders};
};

void Shoot(CPictureFolder& folder, QWidget& window, const QString& name) {
  window.show();
  window.activateWindow();
  QApplication::processEvents();
  folder.Save(window, name);
}

void Type(QWidget& dialog, const QString& text) {
  QInputMethodEvent typed;
  typed.setCommitString(text);
  QApplication::sendEvent(dialog.findChild<QLineEdit*>(), &typed);
}

void Fill(Desk& desk) {
  for (const char16_t* name :
       {u"Famille", u"Paroisse Saint-Étienne", u"Travail", u"Vendée 1793", u"Calendar"})
    desk.files.Put(std::u16string(u"/user/") + name + u".xml", FileOfFrance());
  CalendarFile now = ReadCalendar(FileOfFrance());
  const auto add = [&](int month, int day, const char16_t* name) {
    DayEvent event = CalendarWith(name).content.dayEvents[0];
    event.month = month;
    event.day = day;
    event.isPublic = false;
    now.content.dayEvents.push_back(event);
  };
  desk.calendars.KeepVersion(u"Famille", now);
  add(3, 12, u"Anniversaire de Jeanne");
  desk.calendars.KeepVersion(u"Famille", now);
  now.content.vacations.push_back({20260704, 20260831, NameText(u"Grandes vacances")});
  now.look.fontWeight = 700;
  desk.calendars.KeepVersion(u"Famille", now);
  add(9, 2, u"Mariage de Paul et Inès");
  Content() = now.content;
  Display().Look() = CalendarLook();
}

void TakeChoice(CPictureFolder& folder, Desk& desk, const QString& suffix) {
  const SavePlaces places{desk.store, desk.calendars};
  CChooseCalendarDlg choice(places, CalendarTask::kOpen);
  Shoot(folder, choice, QStringLiteral("calendars") + suffix);
  CChooseCalendarDlg creation(places, CalendarTask::kCreate);
  creation.show();
  Type(creation, QStringLiteral("famille"));
  Shoot(folder, creation, QStringLiteral("calendars_new") + suffix);
  CRenameCalendarDlg rename(u"Famille", {u"Travail"});
  Type(rename, QString(210, QLatin1Char('x')));
  Shoot(folder, rename, QStringLiteral("calendars_rename") + suffix);
}

void TakeVersions(CPictureFolder& folder, Desk& desk, const QString& suffix) {
  CCalendarActions actions({desk.store, desk.calendars}, {Display(), Rules(), Content()}, nullptr);
  CVersionsDlg versions(actions, u"Famille");
  Shoot(folder, versions, QStringLiteral("versions") + suffix);
  CVersionsDlg none(actions, u"Travail");
  Shoot(folder, none, QStringLiteral("versions_none") + suffix);
}

void TakeImport(CPictureFolder& folder, Desk& desk, const QString& suffix) {
  CEvtImportDlg import(desk.publicCalendars);
  Shoot(folder, import, QStringLiteral("import") + suffix);
  Type(import, QStringLiteral("fran"));
  Shoot(folder, import, QStringLiteral("import_chosen") + suffix);
}

}  // namespace

void TakeCalendars(CPictureFolder& folder) {
  ResetCalendarConfig();
  const QFont font = QApplication::font();
  for (const bool isLarge : {false, true}) {
    QFont used = font;
    if (isLarge) used.setPointSizeF(font.pointSizeF() * kLarge);
    QApplication::setFont(used);
    const QString suffix = isLarge ? QStringLiteral("_large_font") : QString();
    Desk desk;
    Display().calendarName.Set(u"Famille");
    const QDir legals(QStringLiteral(ORBISOL_LEGALS));
    for (const QString& name : legals.entryList({QStringLiteral("*.xml")})) {
      QFile file(legals.filePath(name));
      if (file.open(QIODevice::ReadOnly))
        desk.files.Put(u"/share/Legals/" + name.toStdU16String(), file.readAll().toStdString());
    }
    Fill(desk);
    TakeChoice(folder, desk, suffix);
    TakeVersions(folder, desk, suffix);
    TakeImport(folder, desk, suffix);
  }
  QApplication::setFont(font);
  Display() = DisplaySettings();
  Content() = CalendarContent();
}

}  // namespace orbisol
