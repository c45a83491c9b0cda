// The editors of events and vacation periods: empty, filled, with a field that is refused, and each in a font
// a third larger.
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>

#include <functional>
#include <string_view>

#include "files/calendar_file.h"
#include "files/calendar_store.h"
#include "tests/support/memory_files.h"
#include "tests/support/memory_store.h"
#include "tools/screenshot/pictures.h"
#include "ui/editors/events_dialog.h"
#include "ui/editors/vacations_dialog.h"
#include "ui/toolkit/date_edit.h"

namespace orbisol {
namespace {

using namespace std::string_view_literals;

constexpr PackedDate kDay = 20260513;
constexpr int kYear = 2026;

CalendarContent FilledContent() {
  CalendarContent content = ReadCalendar(FileOfFrance()).content;
  const auto add = [&](const EventFields& fields) {
    for (const DayEvent& record : RecordsOf(RowOf(fields, nullptr))) content.dayEvents.push_back(record);
  };
  using enum DayEventType;
  add({.name = u"Anniversaire de Zoé", .month = 5, .day = 13, .since = 20140513});
  add({.name = u"Fête des voisins",
       .type = kNthWeekday,
       .month = 5,
       .weekday = 5,
       .weeknum = 5,
       .since = 20000101});
  add({.name = u"Repas de Pâques chez les cousins", .type = kRomanEaster, .distance = 0});
  add({.name = u"Ides de mars", .month = 3, .day = 15, .since = -450701, .until = -430315});
  content.vacations = {{20260214, 20260301, u"Hiver (zone A)"sv},
                       {20260411, 20260426, u"Printemps"sv},
                       {20260704, 20260831, u"Été"sv},
                       {20260718, 20260801, u"Bretagne, à la mer"sv},
                       {20261017, 20261101, u"Toussaint"sv}};
  return content;
}

struct EditorPicture {
  const char* name;
  bool isFilled;
  std::function<void(QDialog& dialog)> prepare;
};

template <class Widget>
Widget& Named(QDialog& dialog, const char* name) {
  return *dialog.findChild<Widget*>(QLatin1String(name));
}

template <class Dialog>
void Show(CPictureFolder& folder, Dialog& dialog, const QString& name, const EditorPicture& picture) {
  dialog.show();
  dialog.activateWindow();
  QApplication::processEvents();
  if (picture.prepare) picture.prepare(dialog);
  QApplication::processEvents();
  folder.Save(dialog, name);
}

const EditorPicture kEventPictures[] = {
    {"events_empty", false, {}},
    {"events_filled", true, [](QDialog& d) { static_cast<CEventsDialog&>(d).SelectRow(4); }},
    {"events_nth_weekday", true,
     [](QDialog& d) {
       Named<QLineEdit>(d, "name").setText(QStringLiteral("Brocante"));
       Named<QComboBox>(d, "type").setCurrentIndex(3);
     }},
    {"events_refused", true,
     [](QDialog& d) {
       Named<QComboBox>(d, "type").setCurrentIndex(6);
       Named<QComboBox>(d, "month").setCurrentIndex(3);
       Named<QSpinBox>(d, "day").setValue(31);
       Named<CDateEdit>(d, "since").SetDate(20260431);
       Named<QPushButton>(d, "add").click();
       Named<QLineEdit>(d, "name").setText(QStringLiteral("Bank Holiday"));
     }},
};
const EditorPicture kVacationPictures[] = {
    {"vacations_empty", false, {}},
    {"vacations_filled", true, [](QDialog& d) { static_cast<CVacationsDialog&>(d).SelectRow(3); }},
    {"vacations_refused", true,
     [](QDialog& d) { Named<CDateEdit>(d, "to").SetDate(kDay), Named<QPushButton>(d, "add").click(); }},
};

void TakeAll(CPictureFolder& folder, const QString& suffix) {
  CMemoryStore store("\"CalendarName\"=\"Calendar\"\n");
  CMemoryFiles files;
  CCalendarStore calendars(files, kMemoryFolders);
  const EditorServices services{{store, calendars}, [](QWidget*, CalendarContent&) { return false; }};
  for (const EditorPicture& picture : kEventPictures) {
    CEventsDialog dialog(services, picture.isFilled ? FilledContent() : CalendarContent(), kDay, kYear);
    Show(folder, dialog, QString::fromLatin1(picture.name) + suffix, picture);
  }
  for (const EditorPicture& picture : kVacationPictures) {
    CVacationsDialog dialog(services, picture.isFilled ? FilledContent() : CalendarContent(),
                            picture.isFilled ? kDay : 0, picture.isFilled ? 20260517 : 0);
    Show(folder, dialog, QString::fromLatin1(picture.name) + suffix, picture);
  }
}

}  // namespace

void TakeEditors(CPictureFolder& folder) {
  ResetCalendarConfig();
  TakeAll(folder, {});
  const QFont font = QApplication::font();
  QFont larger = font;
  larger.setPointSizeF(font.pointSizeF() * 4 / 3);
  QApplication::setFont(larger);
  TakeAll(folder, QStringLiteral("_large_font"));
  QApplication::setFont(font);
}

}  // namespace orbisol
