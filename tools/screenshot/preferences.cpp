// The pages of the preferences, and months with texts in their cells.
#include <QApplication>
#include <QLineEdit>
#include <QMenu>
#include <QPalette>
#include <QPushButton>

#include "content/calendar_content.h"
#include "content/selected_date.h"
#include "files/calendar_file.h"
#include "settings/display_settings.h"
#include "tests/content/rule_builder.h"
#include "tests/support/memory_files.h"
#include "tests/support/memory_store.h"
#include "tools/screenshot/pictures.h"
#include "ui/month/month_window.h"
#include "ui/preferences/color_presets.h"
#include "ui/preferences/prefs_prop_sheet.h"

namespace orbisol {
namespace {

void AddEvent(int month, int day, std::u16string_view name) {
  Content().dayEvents.push_back(EveryYear(month, day, name, false));
}

// Fills May 2026 like a family's calendar on the wall: long names, four events on a day, a vacation.
void FillMay() {
  Content() = ReadCalendar(FileOfFrance()).content;
  AddEvent(5, 5, u"Rendez-vous chez le dentiste à quatorze heures trente");
  AddEvent(5, 12, u"Anniversaire de Marguerite");
  AddEvent(5, 20, u"Piscine");
  AddEvent(5, 20, u"Conseil de classe");
  AddEvent(5, 20, u"Dîner chez les Lefèvre");
  AddEvent(5, 20, u"Sortir les poubelles");
  AddEvent(5, 27, u"Chorale");
  AddEvent(5, 27, u"Médecin");
  Content().vacations.push_back(Period(20260509, 20260518, u"Vacances de printemps à la montagne"));
}

void Restore() {
  ResetCalendarConfig();
  Display() = DisplaySettings();
  Display().showWeekNumber = true;
  Content() = CalendarContent();
  Selected().SetPacked(20260513);
}

void TakeSheet(CPictureFolder& folder, const QString& suffix) {
  Restore();
  CMemoryStore store("\"CalendarName\"=\"Calendar\"\n");
  CMemoryFiles files;
  CCalendarStore calendars(files, kMemoryFolders);
  CPrefsPropSheet sheet({store, calendars});
  sheet.show();
  QApplication::processEvents();
  folder.Save(sheet, QStringLiteral("preferences_configuration") + suffix);
  auto* const presets = sheet.findChild<QPushButton*>(QStringLiteral("reformPresets"))->menu();
  presets->popup(sheet.geometry().topLeft());
  folder.Save(*presets, QStringLiteral("preferences_reforms") + suffix);
  presets->close();
  sheet.findChild<QPushButton*>(QStringLiteral("yearPresets"))->menu()->actions().constLast()->trigger();
  sheet.findChild<QLineEdit*>(QStringLiteral("row3"))->setText(QStringLiteral("25/03/1700"));
  sheet.findChild<QLineEdit*>(QStringLiteral("row3"))->textEdited(QStringLiteral("25/03/1700"));
  sheet.Apply();
  QApplication::processEvents();
  folder.Save(sheet, QStringLiteral("preferences_refused") + suffix);
  sheet.ShowPage(CPrefsPropSheet::kDisplayPage);
  QApplication::processEvents();
  folder.Save(sheet, QStringLiteral("preferences_display") + suffix);
  sheet.ShowPage(CPrefsPropSheet::kColorsPage);
  QApplication::processEvents();
  folder.Save(sheet, QStringLiteral("preferences_colors") + suffix);
  sheet.findChild<QPushButton*>(QStringLiteral("presets"))->menu()->actions().at(kDarkColors)->trigger();
  QApplication::processEvents();
  folder.Save(sheet, QStringLiteral("preferences_colors_dark") + suffix);
}

// Takes the pages in the font of the desktop, in one twice as large, and under a dark theme.
void TakeSheets(CPictureFolder& folder) {
  TakeSheet(folder, {});
  const QFont font = QApplication::font();
  QFont large = font;
  large.setPointSizeF(2 * font.pointSizeF());
  QApplication::setFont(large);
  TakeSheet(folder, QStringLiteral("_large_font"));
  QApplication::setFont(font);
  const QPalette palette = QApplication::palette();
  QApplication::setPalette(DarkTheme());
  TakeSheet(folder, QStringLiteral("_dark_theme"));
  QApplication::setPalette(palette);
}

struct TextsPicture {
  const char* name;
  QSize size;
  void (*prepare)();
};

const TextsPicture kTextsPictures[] = {
    {"cell_texts_850x434", {850, 434}, [] {}},
    {"cell_texts_1280x800", {1280, 800}, [] {}},
    {"cell_texts_1920x1080", {1920, 1080}, [] {}},
    {"cell_texts_cells",
     {1280, 800},
     [] {
       Display().fullCellBackground = true;
       Display().collapseCells = false;
       Display().circleTheDay = true;
       Display().colors[kHolidayBack] = Rgb(0xFF, 0xD8, 0xD0);
       Display().colors[kEventBack] = Rgb(0xFF, 0xF2, 0xA8);
     }},
    {"cell_texts_dark",
     {1280, 800},
     [] {
       Display().colors = PresetColors(kDarkColors);
       Display().backgroundImage = false;
     }},
};

}  // namespace

void TakePreferences(CPictureFolder& folder) {
  TakeSheets(folder);
  for (const TextsPicture& picture : kTextsPictures) {
    Restore();
    FillMay();
    Display().cellTexts = true;
    picture.prepare();
    CMonthWindow window;
    window.resize(picture.size);
    folder.Save(window, QString::fromLatin1(picture.name));
  }
  Restore();
}

}  // namespace orbisol
