// What the editors of events and of vacation periods share: a list with a filter, a form beside it, undo and
// redo, and the ways out of the dialog.
//
// The dialog edits a copy of the content; nothing in force is touched before "Enregistrer", which saves
// through SaveCalendarFromWindow and puts the copy in force only where that succeeded. The form shows either
// a row of the list, or a new entry while none is selected. What the form holds is never lost: changes of a
// row are applied when another one is selected, a new entry waits meanwhile, and both are taken over when the
// calendar is saved. What is refused has its reason said at its field, and the form stays.
//
// A class that derives from it brings the form and the rows.
#pragma once

#include <QDialog>
#include <QUndoStack>

#include <functional>
#include <initializer_list>
#include <memory>

#include "content/calendar_content.h"
#include "ui/editors/rows_model.h"
#include "ui/window/save_calendar.h"
#include "ui/window/session_end.h"

class QAbstractButton;
class QDialogButtonBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QToolButton;

namespace orbisol {

class CRowList;

struct EditorServices {
  SavePlaces places;
  // Lets the user choose holidays and adds them to `content`; returns whether it was changed. `parent` is the
  // editor. Empty where there is nothing to import with: the button is hidden.
  std::function<bool(QWidget* parent, CalendarContent& content)> importHolidays;
};

class CEditorDialog : public QDialog, public SessionWindow {
  Q_OBJECT

 public:
  // Asks about changes that are not saved. Escape and the button of the frame end here too.
  void reject() override;

  // Saves without a question. Of a form that is refused the text is kept, as an event without a day.
  bool KeepUnsaved() override;

  // The row of the list that the form shows; -1 for a new entry.
  int ShownRow() const { return m_shownRow; }
  // Selects a row, as a click on it does; -1 for none, and none for a row that the filter hides.
  void SelectRow(int row);

 protected:
  // The controls that every editor has, made by its form.
  struct Controls {
    CRowList* list;
    QLineEdit* filter;
    QPushButton *create, *remove, *up, *down;
    QToolButton *undo, *redo;
    QLabel* title;                       // of the form
    QPushButton *add, *apply, *restore;  // below the form
    QDialogButtonBox* buttons;
    int formTexts, emptyTexts;  // entries of the string table
    int helpTopic;
  };

  CEditorDialog(const EditorServices& services, QWidget* parent);
  ~CEditorDialog() override;

  // Connects the controls and the rows. To be called once, by the constructor, after both were made.
  void SetUp(const Controls& controls, std::unique_ptr<CRowsModel> rows);
  // Shows rows that were read anew, and a new entry.
  void RowsRead();
  // To be called when a field was edited.
  void FormEdited();
  // Takes the form over; returns false, and goes to the field, where it is refused.
  bool TakeForm();
  // Makes a step that the form did not ask for, and shows the row that it touched.
  void MakeStep(const std::function<void()>& step);
  // Shows only the rows that fit the filter.
  void Filter();
  // Gives the dialog its first size: shares the width of the list among its columns, makes all fields equally
  // wide, and leaves room for the texts that the labels hold now, the longest that they will show.
  void LayOut(std::initializer_list<int> shares, std::initializer_list<QWidget*> fields,
              std::initializer_list<QLabel*> texts);

  QUndoStack& Undo() { return m_undo; }
  const EditorServices& Services() const { return m_services; }

  // The form.
  virtual void ShowFields(int row) = 0;   // of a row, or the entry begun last for -1
  virtual bool IsFormEdited() const = 0;  // since ShowFields()
  virtual bool IsFormRead() const = 0;    // whether each date that was typed is one
  virtual bool IsEntryBegun() const = 0;  // whether a new entry was edited, in the form or waiting
  virtual bool IsEntryWanted() const { return IsEntryBegun(); }  // also where the dialog opened with one
  virtual bool IsFormGood() = 0;         // says refusals at their fields and goes to the first
  virtual void TakeFields(int row) = 0;  // as a step; -1 adds a row and begins another entry
  virtual void FocusFirstField() = 0;
  virtual std::u16string TypedText() const = 0;  // the name or the title in the form

  // The kind of rows that the filter lets through.
  virtual RowKind ShownKind() const { return RowKind::kAny; }

  // The content.
  virtual void ReadContent(const CalendarContent& content) = 0;
  virtual CalendarContent EditedContent() const = 0;

 private:
  bool HasChanges() const { return !m_undo.isClean() || IsFormEdited() || IsEntryBegun(); }
  bool TakeAll();
  void ShowRow(int row);
  void OnSelection();
  void Quietly(const std::function<void()>& change);
  void OnUndo();
  void OnAdd();
  void OnApply();
  void OnRemove();
  void OnMove(int by);
  bool Save();
  void UpdateButtons();
  bool eventFilter(QObject* object, QEvent* event) override;

  bool m_isQuiet = false;  // while the selection follows the form and not the other way around
  EditorServices m_services;
  QUndoStack m_undo;
  Controls m_controls = {};
  std::unique_ptr<CRowsModel> m_rows;
  std::unique_ptr<CRowsView> m_view;
  int m_shownRow = -1;
};

}  // namespace orbisol
