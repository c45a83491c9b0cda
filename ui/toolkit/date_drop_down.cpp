#include "ui/toolkit/date_drop_down.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QTableWidget>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

#include "content/selected_date.h"
#include "core/date_text.h"
#include "resources/strings.h"
#include "ui/toolkit/keys.h"
#include "ui/toolkit/plain_text.h"
#include "ui/toolkit/typed_date.h"

namespace orbisol {
namespace {

constexpr int kColumns = 7;
constexpr int kRows = 6;
constexpr int kMonthsAYear = 12;

QToolButton* MakeArrow(Qt::ArrowType arrow, const QString& name) {
  auto* const button = new QToolButton;
  button->setArrowType(arrow);
  button->setAutoRaise(true);
  button->setAutoRepeat(true);
  button->setFocusPolicy(Qt::TabFocus);
  button->setAccessibleName(name);
  button->setToolTip(name);
  return button;
}

// Returns the date itself, or, for one that does not exist, the date of the day that it counts as.
Date ExistingDate(const Date& date) {
  return DoesDateExist({date.year, date.month, date.day}) ? date : DateOfDayNumber(date.DayNumber());
}

}  // namespace

CDateDropDown::CDateDropDown(QWidget* field)
    : QFrame(field, Qt::Popup),
      m_title(new QLabel),
      m_table(new QTableWidget(kRows, kColumns)),
      m_none(new QPushButton) {
  setFrameStyle(QFrame::StyledPanel | QFrame::Plain);
  setAccessibleName(TablePiece(kTextDateEdit, 1));

  constexpr int kPreviousMonth = 1;  // indices of pieces of kTextHeaderNames
  constexpr int kNextMonth = 2;
  auto* const previous = MakeArrow(Qt::LeftArrow, TablePiece(kTextHeaderNames, kPreviousMonth));
  auto* const next = MakeArrow(Qt::RightArrow, TablePiece(kTextHeaderNames, kNextMonth));
  connect(previous, &QToolButton::clicked, this, [this] { StepMonth(-1); });
  connect(next, &QToolButton::clicked, this, [this] { StepMonth(1); });
  m_title->setAlignment(Qt::AlignCenter);
  m_title->setTextFormat(Qt::PlainText);
  auto* const head = new QHBoxLayout;
  head->addWidget(previous);
  head->addWidget(m_title, 1);
  head->addWidget(next);

  m_table->setEditTriggers(QAbstractItemView::NoEditTriggers);
  m_table->setSelectionMode(QAbstractItemView::SingleSelection);
  m_table->setTabKeyNavigation(false);
  m_table->setFrameStyle(QFrame::NoFrame);
  m_table->setShowGrid(false);
  m_table->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  m_table->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  m_table->verticalHeader()->hide();
  m_table->horizontalHeader()->setSectionsClickable(false);
  m_table->horizontalHeader()->setHighlightSections(false);
  m_table->installEventFilter(this);
  connect(m_table, &QTableWidget::cellClicked, this, [this](int row, int column) {
    const int cell = CellAt(row, column);
    if (cell > m_month.LastCell()) return;
    const DayCell& day = m_month.cells[static_cast<std::size_t>(cell)];
    if (day.day != 0) Choose(day.ymd);
  });

  auto* const today = new QPushButton(TableText(kTextToday));
  connect(today, &QPushButton::clicked, this, [this] { ChooseToday(); });
  connect(m_none, &QPushButton::clicked, this, [this] { Choose(0); });
  auto* const foot = new QHBoxLayout;
  foot->addWidget(m_none);
  foot->addStretch();
  foot->addWidget(today);
  for (QPushButton* const button : {today, m_none}) button->setAutoDefault(false);

  auto* const column = new QVBoxLayout(this);
  column->setSizeConstraint(QLayout::SetFixedSize);
  column->addLayout(head);
  column->addWidget(m_table);
  column->addLayout(foot);
}

void CDateDropDown::Open(PackedDate ymd, const QString& noneText, const std::optional<CalendarRules>& rules) {
  m_rules = rules;
  setFont(parentWidget()->font());  // a top-level window has the application's font by default
  m_none->setText(MenuText(UpperFirst(Utf16View(noneText))));
  m_none->setVisible(!noneText.isEmpty());
  SetColumnWidths();
  MarkDay(ymd);

  adjustSize();
  const QWidget* const field = parentWidget();
  const QRect screen = field->screen()->availableGeometry();
  QPoint corner = field->mapToGlobal(QPoint(0, field->height()));
  if (corner.y() + height() > screen.bottom()) corner.setY(field->mapToGlobal(QPoint(0, 0)).y() - height());
  corner.setX(std::clamp(corner.x(), screen.left(), std::max(screen.left(), screen.right() - width() + 1)));
  move(corner);
  show();
  m_table->setFocus(Qt::PopupFocusReason);
}

// Makes the columns as wide as the widest of names and days, so that the table follows the font.
void CDateDropDown::SetColumnWidths() {
  const QFontMetrics metrics(m_table->font());
  int widest = metrics.horizontalAdvance(QStringLiteral("00"));
  for (int day = 1; day <= kColumns; ++day)
    widest = std::max(widest, metrics.horizontalAdvance(ToQString(WeekdayAbbrev(day))));
  const int width = widest + metrics.averageCharWidth() * 2;
  const int height = metrics.lineSpacing() * 3 / 2;
  m_table->horizontalHeader()->setMinimumSectionSize(1);
  m_table->verticalHeader()->setMinimumSectionSize(1);
  m_table->horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  m_table->horizontalHeader()->setDefaultSectionSize(width);
  m_table->verticalHeader()->setDefaultSectionSize(height);
  const int names = m_table->horizontalHeader()->sizeHint().height();
  m_table->setFixedSize(kColumns * width, names + kRows * height);
}

// Marks a day of the calendar; today for 0.
void CDateDropDown::MarkDay(PackedDate ymd) {
  const ScopedRules inForce(RulesOfMonths());
  Mark(ymd == 0 ? Date::Today() : Date(ymd));
}

// Call this and all below it under RulesOfMonths().
void CDateDropDown::Mark(const Date& date) {
  Date shown = date;
  ClampToBounds(shown);
  m_marked = ExistingDate(shown).Packed();
  ShowMonth();
}

void CDateDropDown::StepMonth(int months) {
  const ScopedRules inForce(RulesOfMonths());
  Date date(m_marked);
  StepMonths(date, months);
  Mark(date);
}

void CDateDropDown::ShowMonth() {
  const YearMonthDay marked = Unpack(m_marked);
  m_month = MonthModel();
  m_month.year = marked.year;
  m_month.month = marked.month;
  m_month.Build(CalendarContent(), CalendarLook().colors, MonthModel::kWithoutMoon);

  const QString title = ToQString(UpperFirst(MonthName(marked.month)));
  m_title->setText(title + QLatin1Char(' ') + QString::number(marked.year));
  QStringList names;
  const int firstWeekday = m_month.FirstCell();  // 0 where weeks begin on Sunday, 1 on Monday
  for (int column = 0; column < kColumns; ++column)
    names << ToQString(WeekdayAbbrev((firstWeekday + column) % kColumns));
  m_table->setHorizontalHeaderLabels(names);

  const QColor grey = palette().color(QPalette::Disabled, QPalette::Text);
  for (int row = 0; row < kRows; ++row) {
    for (int column = 0; column < kColumns; ++column) {
      const int cell = CellAt(row, column);
      auto* const item = new QTableWidgetItem;
      item->setTextAlignment(Qt::AlignCenter);
      m_table->setItem(row, column, item);
      const DayCell empty;
      const DayCell& day = cell <= m_month.LastCell() ? m_month.cells[static_cast<std::size_t>(cell)] : empty;
      if (day.day == 0) {
        item->setFlags(Qt::NoItemFlags);
        continue;
      }
      item->setText(QString::number(day.day));
      item->setData(Qt::AccessibleTextRole, ToQString(LongDate(Date(day.ymd), false)));
      if (day.month != marked.month) item->setForeground(grey);
      if (day.ymd == m_marked) m_table->setCurrentItem(item);
    }
  }
}

bool CDateDropDown::HandleKey(int key, Qt::KeyboardModifiers modifiers) {
  if (IsEnter(key) || key == Qt::Key_Space) {
    Choose(m_marked);
    return true;
  }
  const ScopedRules inForce(RulesOfMonths());
  Date date(m_marked);
  const int months = modifiers.testFlag(Qt::ControlModifier) ? kMonthsAYear : 1;
  switch (key) {
    case Qt::Key_Left:
      StepDays(date, -1);
      break;
    case Qt::Key_Right:
      StepDays(date, 1);
      break;
    case Qt::Key_Up:
      StepDays(date, -kColumns);
      break;
    case Qt::Key_Down:
      StepDays(date, kColumns);
      break;
    case Qt::Key_PageUp:
      date.AddMonths(-months);
      break;
    case Qt::Key_PageDown:
      date.AddMonths(months);
      break;
    case Qt::Key_Home:
      date.day = 1;
      break;
    case Qt::Key_End:
      date.day = date.DaysInMonth();
      break;
    default:
      return false;
  }
  Mark(date);
  return true;
}

bool CDateDropDown::eventFilter(QObject* watched, QEvent* event) {
  if (watched == m_table && event->type() == QEvent::KeyPress) {
    const auto* const key = static_cast<QKeyEvent*>(event);
    if (!key->modifiers().testFlag(Qt::AltModifier) && HandleKey(key->key(), key->modifiers())) return true;
  }
  return QFrame::eventFilter(watched, event);
}

void CDateDropDown::ChooseToday() {
  Choose([&] {
    const ScopedRules inForce(RulesOfMonths());
    return Date::Today().Packed();
  }());
}

void CDateDropDown::Choose(PackedDate ymd) {
  const bool exists = [&] {
    const ScopedRules inForce(RulesOfMonths());
    return ymd == 0 || DoesDateExist(Unpack(ymd));
  }();
  if (!exists) return;
  close();
  emit dateChosen(ymd);
}

}  // namespace orbisol
