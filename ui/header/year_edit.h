// The editor of the year in the header, with its spin control.
//
//   m_year->Open(CivilYearOf(Selected()));
//   connect(m_year, &CYearEdit::YearEntered, this, …);  // with every digit typed and every step
#pragma once

#include <QAbstractSpinBox>

#include "core/date_range.h"

namespace orbisol {

// Edit field for a sign and digits, which is never rewritten while the user types.
class CYearEdit : public QAbstractSpinBox {
  Q_OBJECT

  // Properties by which screen readers know a spin control.
  Q_PROPERTY(int value READ Position WRITE Enter)
  Q_PROPERTY(int minimum READ Minimum CONSTANT)
  Q_PROPERTY(int maximum READ Maximum CONSTANT)

 public:
  explicit CYearEdit(QWidget* parent);

  // Shows the editor with the year selected, and gives it the focus.
  void Open(int year);
  // Returns the year that the spin control steps from.
  int Position() const { return m_position; }
  void SetPosition(int year);
  int Minimum() const { return kFirstYearShown; }
  int Maximum() const { return kLastYearShown; }
  // Enters a year, clamped, as if it had been typed.
  void Enter(int year);
  QString Text() const { return text(); }

  void stepBy(int steps) override;
  QValidator::State validate(QString& input, int& position) const override;

  // Returns the width of the buttons and the frame beside the text.
  int ButtonsWidth() const;

 signals:
  void YearEntered(int year);  // -3999..3999, clamped
  void Closed(bool byEnter);

 protected:
  StepEnabled stepEnabled() const override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  int m_position = 0;
};

}  // namespace orbisol
