// The preferences over a main window, with a calendar in memory.
#pragma once

#include <QAction>
#include <QMenu>

#include "tests/ui/shell/frame_fixture.h"
#include "ui/preferences/pref_cal_win.h"
#include "ui/preferences/prefs_prop_sheet.h"

namespace orbisol {

inline constexpr PackedDate kShown = 20240515;

class PreferencesTest : public FrameTest {
 public:
  using FrameTest::InDialog;
  using FrameTest::Settle;

  PreferencesTest() {
    CalendarFile calendar;
    calendar.content = {{EveryYear(5, 8, u"Victoire"), EveryYear(5, 14, u"Dîner", false)},
                        {Period(20240520, 20240524, u"Vacances")}};
    calendar.look.backgroundImage = false;
    files.Put(u"/user/Calendar.xml", WriteCalendar(calendar, CalendarForm::kUser));
    store.Write({{"FullCellBkgnd", DwordValue(1)}});
    StoreLayout({.rect = {50, 50, 1250, 900}, .rightPaneShown = true});  // cells have room for texts
    Open();
    OpenSheet();
  }

  void OpenSheet() {
    sheet = std::make_unique<CPrefsPropSheet>(SavePlaces{store, calendars}, frame.get());
    QObject::connect(sheet.get(), &CPrefsPropSheet::settingsSaved, frame.get(),
                     &CCalendarFrame::CalendarChanged);
    sheet->show();
    sheet->activateWindow();
    Settle();
  }

  template <class Widget = QWidget>
  Widget& Find(const char* name) {
    auto* const found = sheet->findChild<Widget*>(QString::fromLatin1(name));
    if (found == nullptr) throw std::runtime_error(name);
    return *found;
  }
  void Press(QDialogButtonBox::StandardButton which) {
    QTest::mouseClick(sheet->findChild<QDialogButtonBox*>()->button(which), Qt::LeftButton);
    Settle();
  }
  void Click(const char* box) {
    auto& widget = Find<QCheckBox>(box);
    QTest::mouseClick(&widget, Qt::LeftButton, {}, QPoint(8, widget.height() / 2));
  }
  void Type(const char* field, const QString& text) {
    auto& edit = Find<QLineEdit>(field);
    edit.setFocus();
    edit.selectAll();
    QTest::keyClick(&edit, Qt::Key_Delete);
    QTest::keyClicks(&edit, text);
  }
  void Choose(const char* menuButton, const QString& beginning) {
    for (QAction* const action : Find<QPushButton>(menuButton).menu()->actions())
      if (action->text().startsWith(beginning)) return action->trigger();
    ADD_FAILURE() << "no entry " << qPrintable(beginning);
  }
  // The main window without what depends on the focus and the pointer.
  struct Seen {
    QImage month, header;
    QString status;
    bool operator==(const Seen&) const = default;
  };
  Seen SeenAt(PackedDate date) {
    Show(date);
    Dialog().Month().clearFocus();
    Settle();
    return {Dialog().Month().grab().toImage(), Dialog().Header().grab().toImage(), frame->StatusText()};
  }
  // Returns the main window as it is with that date after a restart.
  Seen AfterRestart(PackedDate date) {
    sheet.reset();
    frame.reset();
    Display() = DisplaySettings();
    Rules() = DefaultCalendarRules();
    Content() = CalendarContent();
    Select(date);
    Open();
    return SeenAt(date);
  }
  std::string Stored() const { return files.files.at(u"/user/Calendar.xml").bytes + *store.text; }

  std::unique_ptr<CPrefsPropSheet> sheet;
};

}  // namespace orbisol
