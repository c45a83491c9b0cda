// The editor of the year in the header, with its spin control.
//
//   m_year->Open(CivilYearOf(Selected()));
//   connect(m_year, &CYearEdit::YearEntered, this, …);  // with every digit typed and every step
#pragma once

#include <QAbstractSpinBox>

namespace orbisol {

// It takes a sign and digits, and is never rewritten while the user types.
class CYearEdit : public QAbstractSpinBox {
  Q_OBJECT

 public:
  explicit CYearEdit(QWidget* parent);

  void Open(int year);
  // What the spin control steps from.
  void SetPosition(int year) { m_position = year; }
  QString Text() const { return text(); }

  void stepBy(int steps) override;
  QValidator::State validate(QString& input, int& position) const override;

  // Width of what stands beside the text: the buttons and the frame.
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
