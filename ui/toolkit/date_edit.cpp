#include "ui/toolkit/date_edit.h"

#include <QAction>
#include <QKeyEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOption>
#include <QToolButton>

#include <algorithm>
#include <utility>

#include "content/selected_date.h"
#include "core/date.h"
#include "core/date_text.h"
#include "resources/strings.h"
#include "ui/toolkit/date_drop_down.h"
#include "ui/toolkit/field_note.h"
#include "ui/toolkit/plain_text.h"
#include "ui/toolkit/typed_date.h"

namespace orbisol {
namespace {

constexpr int kMonthsAYear = 12;
constexpr int kButtons = 2;  // the warning sign and the button of the drop-down

int UserOrder() { return orbisol::Date(0).dateOrder; }

QIcon ArrowIcon(const QWidget& widget) {
  const int side = widget.style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, &widget);
  const qreal scale = widget.devicePixelRatioF();
  QPixmap pixmap(QSize(side, side) * scale);
  pixmap.setDevicePixelRatio(scale);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  QStyleOption option;
  option.initFrom(&widget);
  option.rect = QRect(side / 4, side / 4, side / 2, side / 2);
  widget.style()->drawPrimitive(QStyle::PE_IndicatorArrowDown, &option, &painter, &widget);
  return {pixmap};
}

}  // namespace

CDateEdit::CDateEdit(QWidget* parent)
    : QLineEdit(parent),
      m_open(addAction(ArrowIcon(*this), QLineEdit::TrailingPosition)),
      m_mark(addAction(style()->standardIcon(QStyle::SP_MessageBoxWarning), QLineEdit::TrailingPosition)) {
  m_mark->setVisible(false);
  m_open->setToolTip(TablePiece(kTextDateEdit, 0));
  m_open->setText(TablePiece(kTextDateEdit, 0));
  for (QToolButton* const button : findChildren<QToolButton*>())
    button->setAccessibleName(button->defaultAction() == m_open ? m_open->text() : QString());
  setPlaceholderText(ToQString(DatePattern(UserOrder())));
  connect(m_open, &QAction::triggered, this, &CDateEdit::OpenDropDown);
  connect(m_mark, &QAction::triggered, this, [this] { setFocus(); });
  connect(this, &QLineEdit::textEdited, this, &CDateEdit::ReadText);
  connect(this, &QLineEdit::returnPressed, this, &CDateEdit::ShowDate);
  ReadText();
}

void CDateEdit::SetNoneText(const QString& text) {
  const bool wasNone = m_date == 0 && IsValid();
  m_noneText = text;
  if (wasNone || this->text().isEmpty()) SetDate(0);
}

void CDateEdit::SetDate(PackedDate ymd) {
  setText(TextOf(ymd));
  ReadText();
  m_isUnfinished = m_isUnfinished && ymd == 0;
  ShowMark();
}

QString CDateEdit::TextOf(PackedDate ymd) const {
  return ymd == 0 ? m_noneText : ToQString(FieldDate(ymd, UserOrder()));
}

// Reads the text anew. No other function interprets what was typed.
void CDateEdit::ReadText() {
  const QString typed = text().trimmed();
  if (!m_noneText.isEmpty() && (typed.isEmpty() || typed.compare(m_noneText, Qt::CaseInsensitive) == 0)) {
    m_isUnfinished = false;
    Take(0, {});
    return;
  }
  const TypedDate date = [&] {
    const ScopedRules inForce(m_rules.value_or(Rules()));
    const PackedDate selected = m_date != 0 ? m_date : orbisol::Date::Today().Packed();
    return ReadFieldDate(Utf16View(typed), UserOrder(), selected);
  }();
  const bool isBeginningOfNone = m_noneText.startsWith(typed, Qt::CaseInsensitive);
  m_isUnfinished = date.fault == DateFault::kIncomplete || isBeginningOfNone;
  Take(date.ymd, ToQString(DateFaultText(date, UserOrder())));
}

void CDateEdit::Take(PackedDate ymd, const QString& error) {
  const bool wasValid = IsValid();
  m_error = error;
  ShowMark();
  if (error.isEmpty() && std::exchange(m_date, ymd) != ymd) emit dateChanged(ymd);
  if (wasValid != IsValid()) emit validityChanged(IsValid());
}

void CDateEdit::SetNote(CFieldNote* note) {
  m_note = note;
  ShowMark();
}

void CDateEdit::Refuse(const QString& reason) {
  m_refusal = reason;
  ShowMark();
}

void CDateEdit::MarkError() {
  m_isUnfinished = false;
  ShowMark();
}

// Shows an error by a sign with words and by a description, so that neither color nor sight is needed.
void CDateEdit::ShowMark() {
  const bool isUnread = !m_error.isEmpty() && !(m_isUnfinished && (hasFocus() || text().isEmpty()));
  const QString fault = isUnread ? m_error : m_refusal;
  if (m_note != nullptr) m_note->Say(fault);
  m_mark->setVisible(!fault.isEmpty() && m_note == nullptr);
  m_mark->setToolTip(TipMarkup(fault));
  setToolTip(m_mark->toolTip());
  setAccessibleDescription(fault.isEmpty() ? ToQString(DatePattern(UserOrder())) : fault);
}

// Writes a valid date in the field's own form, however it was typed.
void CDateEdit::ShowDate() {
  m_isUnfinished = false;
  if (IsValid()) setText(TextOf(m_date));
  ShowMark();
}

CDateEdit::Part CDateEdit::PartAtCursor() const {
  const QString before = text().left(cursorPosition());
  int place = 0;  // index of the number at the cursor
  bool isDigit = false;
  for (const QChar unit : before) {
    if (isDigit && !unit.isDigit()) ++place;
    isDigit = unit.isDigit();
  }
  constexpr Part kOrders[][3] = {{Part::kMonth, Part::kDay, Part::kYear},
                                 {Part::kDay, Part::kMonth, Part::kYear},
                                 {Part::kYear, Part::kMonth, Part::kDay}};
  return kOrders[std::clamp(UserOrder(), 0, 2)][std::clamp(place, 0, 2)];
}

// Selects a part. The text has the field's own form here, with one "/" between two parts.
void CDateEdit::SelectPart(Part part) {
  qsizetype begin = 0;
  for (;;) {
    const qsizetype slash = text().indexOf(QLatin1Char('/'), begin);
    const qsizetype end = slash < 0 ? text().size() : slash;
    setCursorPosition(static_cast<int>(end));
    if (slash < 0 || PartAtCursor() == part) {
      setSelection(static_cast<int>(begin), static_cast<int>(end - begin));
      return;
    }
    begin = slash + 1;
  }
}

void CDateEdit::Step(Part part, int steps) {
  if (isReadOnly() || !IsValid()) return;
  SetDate(Stepped(part, steps));
  SelectPart(part);
}

// Returns the date some steps away; today where there is none.
PackedDate CDateEdit::Stepped(Part part, int steps) const {
  const ScopedRules inForce(m_rules.value_or(Rules()));
  if (m_date == 0) return orbisol::Date::Today().Packed();
  orbisol::Date date(m_date);
  if (part == Part::kDay) {
    date.AddDays(steps);
  } else {
    date.AddMonths(part == Part::kMonth ? steps : steps * kMonthsAYear);
  }
  ClampToBounds(date);
  // A step of a month may end on a date that the reform removed; the field takes the day that it counts as.
  if (!DoesDateExist({date.year, date.month, date.day})) date.SetDayNumber(date.DayNumber());
  return date.Packed();
}

void CDateEdit::keyPressEvent(QKeyEvent* event) {
  const bool isAlt = event->modifiers().testFlag(Qt::AltModifier);
  const bool isControl = event->modifiers().testFlag(Qt::ControlModifier);
  switch (event->key()) {
    case Qt::Key_F4:
      OpenDropDown();
      return;
    case Qt::Key_Up:
    case Qt::Key_Down:
      if (isAlt) {
        OpenDropDown();
      } else {
        Step(PartAtCursor(), event->key() == Qt::Key_Up ? 1 : -1);
      }
      return;
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
      Step(isControl ? Part::kYear : Part::kMonth, event->key() == Qt::Key_PageDown ? 1 : -1);
      return;
    default:
      QLineEdit::keyPressEvent(event);
  }
}

void CDateEdit::focusOutEvent(QFocusEvent* event) {
  QLineEdit::focusOutEvent(event);
  if (event->reason() != Qt::PopupFocusReason) ShowDate();
}

void CDateEdit::changeEvent(QEvent* event) {
  QLineEdit::changeEvent(event);
  if (event->type() == QEvent::PaletteChange || event->type() == QEvent::StyleChange)
    m_open->setIcon(ArrowIcon(*this));
  if (event->type() == QEvent::ReadOnlyChange) m_open->setEnabled(!isReadOnly());
}

void CDateEdit::OpenDropDown() {
  if (isReadOnly() || !isEnabled()) return;
  if (m_dropDown == nullptr) {
    m_dropDown = new CDateDropDown(this);
    connect(m_dropDown, &CDateDropDown::dateChosen, this, [this](PackedDate ymd) {
      SetDate(ymd);
      setFocus(Qt::PopupFocusReason);
      selectAll();
    });
  }
  m_dropDown->Open(m_date, m_noneText, m_rules);
}

// Returns a size that holds the widest date, or the text of no date, with both buttons.
QSize CDateEdit::sizeHint() const {
  const QFontMetrics metrics = fontMetrics();
  const int widest = std::max(metrics.horizontalAdvance(QStringLiteral("00/00/-00000")),
                              metrics.horizontalAdvance(m_noneText));
  const int button = style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, this) * 3 / 2;
  QSize size = QLineEdit::sizeHint();
  size.setWidth(widest + kButtons * button + metrics.averageCharWidth());
  return size;
}

QSize CDateEdit::minimumSizeHint() const { return sizeHint(); }

}  // namespace orbisol
