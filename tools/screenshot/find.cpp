// Going to a date, and searching for a word: empty, filled, refused; in the desktop's font and in one a third
// larger.
#include <QApplication>
#include <QLabel>
#include <QLineEdit>

#include "core/calendar_config.h"
#include "files/calendar_file.h"
#include "tools/screenshot/pictures.h"
#include "ui/find/find_day_dialog.h"
#include "ui/find/go_to_date_dialog.h"

namespace orbisol {
namespace {

constexpr PackedDate kSelected = 20260513;
constexpr double kLargerFont = 4.0 / 3;

struct FindPicture {
  const char* name;
  const char* typed;
};

constexpr FindPicture kDatePictures[] = {
    {"go_to_date", ""},
    {"go_to_date_one", "18 brumaire an VIII"},
    {"go_to_date_several", "12/10/24"},
    {"go_to_date_dropped", "mercredi 10 octobre 1582"},
    {"go_to_date_refused", "31 avril 2026"},
    {"go_to_date_unknown", "14 juilet 1789"},
};
constexpr FindPicture kSearchPictures[] = {
    {"find_day", ""},
    {"find_day_hits", "fete"},
    {"find_day_none", "pleine lune"},
};

void SaveGoToDate(CPictureFolder& folder, const FindPicture& picture, const QString& suffix) {
  CGoToDateDialog dialog(nullptr, kSelected);
  dialog.show();
  dialog.findChild<QLineEdit*>()->setText(QString::fromUtf8(picture.typed));
  QApplication::processEvents();
  folder.Save(dialog, QString::fromLatin1(picture.name) + suffix);
}

void SaveFindDay(CPictureFolder& folder, const FindPicture& picture, const QString& suffix) {
  CFindDayDialog dialog;
  dialog.Open(ReadCalendar(FileOfFrance()).content, kSelected);
  dialog.findChild<QLineEdit*>()->setText(QString::fromUtf8(picture.typed));
  while (dialog.IsSearching()) QApplication::processEvents();
  QApplication::processEvents();
  folder.Save(dialog, QString::fromLatin1(picture.name) + suffix);
}

// A search under way, with its bar.
void SaveSearching(CPictureFolder& folder, const QString& suffix) {
  CalendarContent content = ReadCalendar(FileOfFrance()).content;
  const std::vector<DayEvent> days = content.dayEvents;
  for (int i = 0; i < 30; ++i) content.dayEvents.insert(content.dayEvents.end(), days.begin(), days.end());
  CFindDayDialog dialog;
  dialog.Open(content, kSelected);
  dialog.findChild<QLineEdit*>()->setText(QStringLiteral("fete"));
  for (int i = 0; i < 3 && dialog.IsSearching(); ++i) QApplication::processEvents();
  folder.Save(dialog, QStringLiteral("find_day_searching") + suffix);
}

void SaveAll(CPictureFolder& folder, const QString& suffix) {
  for (const FindPicture& picture : kDatePictures) SaveGoToDate(folder, picture, suffix);
  for (const FindPicture& picture : kSearchPictures) SaveFindDay(folder, picture, suffix);
  SaveSearching(folder, suffix);
}

}  // namespace

void TakeFind(CPictureFolder& folder) {
  ResetCalendarConfig();
  SaveAll(folder, {});
  const QFont usual = QApplication::font();
  QFont larger = usual;
  larger.setPointSizeF(usual.pointSizeF() * kLargerFont);
  QApplication::setFont(larger);
  SaveAll(folder, QStringLiteral("_large_font"));
  QApplication::setFont(usual);
}

}  // namespace orbisol
