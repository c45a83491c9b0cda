// The editors as a user has them: keys are typed, the calendar is saved, read back from the disk and looked
// at in the month.
#pragma once

#include <QApplication>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include <memory>

#include "content/month_model.h"
#include "content/selected_date.h"
#include "settings/display_settings.h"
#include "tests/support/calendar_builder.h"
#include "tests/support/dialog_test.h"
#include "tests/support/memory_files.h"
#include "tests/support/memory_store.h"
#include "ui/editors/events_dialog.h"
#include "ui/editors/row_list.h"
#include "ui/editors/vacations_dialog.h"
#include "ui/toolkit/field_note.h"

namespace orbisol {

class EditorTest : public DialogTest {
 protected:
  EditorTest() : DialogTest({2024, 5, 15}) {
    Display() = DisplaySettings();
    Content() = {};
    CalendarFile file;
    EXPECT_EQ(calendars.Save(u"Calendar", file, IfChanged::kRefuse).result, WriteResult::kWritten);
  }
  ~EditorTest() override { Content() = {}; }

  CEventsDialog& OpenEvents(PackedDate day = 0) {
    return Open(std::make_unique<CEventsDialog>(services, Content(), day, 2024));
  }
  CVacationsDialog& OpenVacations(PackedDate from = 0, PackedDate to = 0) {
    return Open(std::make_unique<CVacationsDialog>(services, Content(), from, to));
  }

  template <class Widget>
  Widget& Part(const char* name) {
    Widget* const found = dialog->findChild<Widget*>(QLatin1String(name));
    EXPECT_NE(found, nullptr) << name;
    return *found;
  }
  void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QWidget* const focus = dialog->focusWidget();
    QTest::keyClick(focus == nullptr ? dialog.get() : focus, key, modifiers);
  }
  // Goes to a field with Tab, as somebody without a mouse does, and types over what stands there.
  void Type(const char* field, const QString& text) {
    QWidget& target = Part<QWidget>(field);
    for (int i = 0; i < 60 && dialog->focusWidget() != &target; ++i) Press(Qt::Key_Tab);
    ASSERT_EQ(dialog->focusWidget(), &target) << "Tab leads to " << field;
    if (qobject_cast<QComboBox*>(&target) == nullptr) Press(Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(&target, text);
  }
  QString Note(const char* name) { return Part<CFieldNote>(name).Text(); }
  int Rows() { return Part<CRowList>("list").model()->rowCount(); }
  void Save() { Part<QDialogButtonBox>("buttons").button(QDialogButtonBox::Save)->click(); }

  CalendarContent OnDisk() {
    CalendarFile file;
    CCalendarStore fresh(files, kMemoryFolders);
    EXPECT_EQ(fresh.Load(u"Calendar", file), LoadResult::kLoaded);
    return file.content;
  }
  // The first event of each calendar: "Calendar=theirs Calendar (2)=mine ".
  std::string NamesOnDisk() {
    std::string all;
    for (const std::u16string& name : calendars.Names()) {
      const CalendarContent content = ReadCalendar(*calendars.BytesOf(name)).content;
      all += ToUtf8(name) + "=" +
             (content.dayEvents.empty() ? "" : ToUtf8(content.dayEvents[0].name.View())) + " ";
    }
    return all;
  }
  // The days of a month that carry a mark, as the month shows them.
  static std::vector<int> Marked(int year, int month, unsigned mark) {
    MonthModel model;
    model.year = year;
    model.month = month;
    model.Build(Content(), {}, MonthModel::kWithoutMoon);
    std::vector<int> days;
    for (const DayCell& cell : model.cells)
      if (cell.day != 0 && cell.month == month && (cell.marks & mark) != 0) days.push_back(cell.day);
    return days;
  }

  CMemoryFiles files;
  CCalendarStore calendars{files, kMemoryFolders};
  CMemoryStore store{"\"CalendarName\"=\"Calendar\"\n"};
  EditorServices services{{store, calendars}, {}};
  std::unique_ptr<QDialog> dialog;

 private:
  template <class Dialog>
  Dialog& Open(std::unique_ptr<Dialog> made) {
    Dialog& opened = *made;
    dialog = std::move(made);
    dialog->show();
    dialog->activateWindow();
    QApplication::processEvents();
    return opened;
  }
};

}  // namespace orbisol
