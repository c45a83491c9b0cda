// An edit field for one date, shown in the user's order: "14/07/1789". It is typed in that order or in words,
// where these have one meaning ("14 juillet 1789").
//
//   auto* const from = new CDateEdit;
//   from->SetNoneText(u"toujours");            // no date is an answer too
//   from->SetDate(17890714);
//   connect(from, &CDateEdit::dateChanged, this, [this](PackedDate ymd) { … });
//   if (!from->IsValid()) warn(from->Error());
//
// Dates lie within -3999-01-01 … 3999-12-31 and exist under the rules in force, or under those of SetRules().
// A text that is none is kept as it was typed. The reason stands in a line below the field where it has one
// (SetNote), else in the tip of a warning sign beside the text; it is the field's accessible description as
// well. An unfinished date is marked only when the field loses the focus.
//
// Keys: Up and Down step the day, month or year at the cursor, Page Up and Page Down the month, with Ctrl the
// year; Alt+Down or F4 opens a calendar below the field.
#pragma once

#include <QLineEdit>

#include <optional>

#include "core/calendar_config.h"

class QAction;

namespace orbisol {

class CDateDropDown;
class CFieldNote;

class CDateEdit : public QLineEdit {
  Q_OBJECT

 public:
  explicit CDateEdit(QWidget* parent = nullptr);

  // Allows the state without a date, shown as `text`; an empty text forbids it, which is the default.
  void SetNoneText(const QString& text);

  // Reads, steps and shows dates under other rules than those in force, as for the date of a reform that is
  // yet to be set. The rules hold from the next text on.
  void SetRules(const CalendarRules& rules) { m_rules = rules; }

  // Shows a date, or none for 0. A date that does not exist is shown and marked. Emits dateChanged() when it
  // differs from Date().
  void SetDate(PackedDate ymd);

  // Returns the last valid date, 0 for none. While IsValid() is false the text says something else.
  PackedDate Date() const { return m_date; }
  bool IsValid() const { return m_error.isEmpty(); }
  // Returns why the text is no date, in French; empty where it is one.
  QString Error() const { return m_error; }

  // Has a line say why the text is no date or is refused. The line lives as long as the field.
  void SetNote(CFieldNote* note);
  // Says why a date that exists cannot be taken here; an empty reason takes that back.
  void Refuse(const QString& reason);
  // Marks an error also where something is merely still to be typed.
  void MarkError();

  // Opens the calendar below the field; does nothing while the field is read only.
  void OpenDropDown();

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 signals:
  void dateChanged(
      orbisol::PackedDate ymd);  // to another valid date, also while it is being typed; 0 for none
  void validityChanged(bool isValid);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  enum class Part { kDay, kMonth, kYear };

  void ReadText();
  void Take(PackedDate ymd, const QString& error);
  void ShowDate();
  void ShowMark();
  void Step(Part part, int steps);
  Part PartAtCursor() const;
  void SelectPart(Part part);
  PackedDate Stepped(Part part, int steps) const;
  QString TextOf(PackedDate ymd) const;

  std::optional<CalendarRules> m_rules;  // nothing: those in force
  PackedDate m_date = 0;
  QString m_noneText;
  QString m_error;
  QString m_refusal;            // reason given to Refuse()
  bool m_isUnfinished = false;  // the error is only that something is still to be typed
  QAction* m_open;
  QAction* m_mark;
  CFieldNote* m_note = nullptr;
  CDateDropDown* m_dropDown = nullptr;  // made when first needed
};

}  // namespace orbisol
