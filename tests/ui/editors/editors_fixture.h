// The editors as a user has them: what is typed and saved is read back and looked at in the month.
#pragma once

#include "tests/support/calendar_folder_test.h"
#include "ui/editors/events_dialog.h"
#include "ui/editors/row_list.h"
#include "ui/editors/vacations_dialog.h"
#include "ui/toolkit/field_note.h"

namespace orbisol {

class EditorTest : public CalendarFolderTest {
 protected:
  EditorTest() { calendars.Save(u"Calendar", {}, IfChanged::kRefuse); }

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

  CalendarContent Saved() const { return ContentOf(u"Calendar"); }
  // Returns the days of a month that carry a mark, as the month shows them.
  static std::vector<int> Marked(int year, int month, unsigned mark) {
    std::vector<int> days;
    for (const DayCell& cell : BuiltMonth(year, month, Content()).cells)
      if (cell.day != 0 && cell.month == month && (cell.marks & mark) != 0) days.push_back(cell.day);
    return days;
  }

  EditorServices services{{store, calendars}, {}};
  std::unique_ptr<QDialog> dialog;

 private:
  template <class Dialog>
  Dialog& Open(std::unique_ptr<Dialog> made) {
    Dialog& opened = *made;
    dialog = std::move(made);
    Activate(*dialog);
    return opened;
  }
};

}  // namespace orbisol
