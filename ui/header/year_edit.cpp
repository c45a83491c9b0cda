#include "ui/header/year_edit.h"

#include <QAccessible>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QStyle>
#include <QStyleOptionSpinBox>

#include <algorithm>
#include <utility>

#include "core/text.h"
#include "ui/toolkit/keys.h"
#include "ui/toolkit/plain_text.h"

namespace orbisol {

CYearEdit::CYearEdit(QWidget* parent) : QAbstractSpinBox(parent) {
  setAccelerated(true);
  setKeyboardTracking(true);
  lineEdit()->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  connect(lineEdit(), &QLineEdit::textEdited, this, [this](const QString& entered) {
    const bool hasDigit =
        std::any_of(entered.begin(), entered.end(), [](QChar c) { return c >= u'0' && c <= u'9'; });
    if (!hasDigit) return;
    emit YearEntered(std::clamp(ParseDecimal(Utf16View(entered)), kFirstYearShown, kLastYearShown));
  });
}

void CYearEdit::Open(int year) {
  m_position = year;
  lineEdit()->setText(QString::number(year));
  show();
  raise();
  setFocus(Qt::OtherFocusReason);
  selectAll();
}

void CYearEdit::SetPosition(int year) {
  if (year == std::exchange(m_position, year) || !isVisible()) return;
  QAccessibleValueChangeEvent event(this, year);
  QAccessible::updateAccessibility(&event);
}

void CYearEdit::stepBy(int steps) { Enter(m_position + std::clamp(steps, kFirstYearShown, kLastYearShown)); }

void CYearEdit::Enter(int year) {
  emit YearEntered(std::clamp(year, kFirstYearShown, kLastYearShown));
  // The owner has set the position to the year that it shows now.
  lineEdit()->setText(QString::number(m_position));
  selectAll();
}

QAbstractSpinBox::StepEnabled CYearEdit::stepEnabled() const {
  StepEnabled enabled = StepNone;
  if (m_position > kFirstYearShown) enabled |= StepDownEnabled;
  if (m_position < kLastYearShown) enabled |= StepUpEnabled;
  return enabled;
}

QValidator::State CYearEdit::validate(QString& input, int&) const {
  for (qsizetype i = 0; i < input.size(); ++i) {
    const bool isSign = i == 0 && (input[i] == u'-' || input[i] == u'+');
    if (!isSign && (input[i] < u'0' || input[i] > u'9')) return QValidator::Invalid;
  }
  return QValidator::Acceptable;
}

int CYearEdit::ButtonsWidth() const {
  QStyleOptionSpinBox option;
  initStyleOption(&option);
  option.rect = QRect(0, 0, 200, option.fontMetrics.height() + 8);
  const QRect field = style()->subControlRect(QStyle::CC_SpinBox, &option, QStyle::SC_SpinBoxEditField, this);
  constexpr int kTextMargins = 6;  // pixels left and right of the text, with the cursor
  return option.rect.width() - field.width() + kTextMargins;
}

void CYearEdit::keyPressEvent(QKeyEvent* event) {
  if (IsEnter(event->key()) || event->key() == Qt::Key_Escape) {
    event->accept();
    // Repetitions come from an Enter that is still held since it opened the editor.
    if (!event->isAutoRepeat()) emit Closed(IsEnter(event->key()));
    return;
  }
  QAbstractSpinBox::keyPressEvent(event);
}

void CYearEdit::focusOutEvent(QFocusEvent* event) {
  QAbstractSpinBox::focusOutEvent(event);
  // The editor's own menu takes the focus only for a moment.
  if (event->reason() != Qt::PopupFocusReason) emit Closed(false);
}

}  // namespace orbisol
