#include "ui/preferences/pref_cal_win.h"

#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

#include <algorithm>

#include "resources/strings.h"
#include "ui/preferences/sample_title.h"
#include "ui/toolkit/geometry.h"
#include "ui/toolkit/plain_text.h"

namespace orbisol {
namespace {

constexpr int kTitleShare = 8;  // the title takes one part of so many of the height, like a row of the month

}  // namespace

CPrefCalWin::CPrefCalWin(const Preferences& edited, QWidget* parent) : QWidget(parent), m_edited(edited) {
  setAttribute(Qt::WA_OpaquePaintEvent);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  const QSize least = LeastMonthSize(font());
  setMinimumSize(least + QSize(0, least.height() / (kTitleShare - 1)));
  constexpr int kPreviewName = 5;  // a piece of kTextPreferences
  setAccessibleName(TablePiece(kTextPreferences, kPreviewName));
  connect(&m_background, &CBackgroundPicture::arrived, this, [this] {
    m_painter.SetBackground(m_background.Picture());
    update();
  });
  m_background.Load(m_edited.display);
  m_painter.SetBackground(m_background.Picture());
  m_hadPicture = m_edited.display.backgroundImage;
  m_hadPath = m_edited.display.backgroundImagePath;
}

QSize CPrefCalWin::sizeHint() const { return minimumSize() * 5 / 4; }

void CPrefCalWin::SetSample(SampleKind kind) {
  m_kind = kind;
  SettingsChanged();
}

void CPrefCalWin::SetClickable(bool isClickable) {
  m_isClickable = isClickable;
  setCursor(isClickable ? Qt::PointingHandCursor : Qt::ArrowCursor);
}

void CPrefCalWin::SettingsChanged() {
  m_isOutdated = true;
  const DisplaySettings& display = m_edited.display;
  if (m_hadPicture != display.backgroundImage || m_hadPath != display.backgroundImagePath) {
    m_hadPicture = display.backgroundImage;
    m_hadPath = display.backgroundImagePath;
    m_background.Load(display);
    m_painter.SetBackground(m_background.Picture());
  }
  update();
}

QRect CPrefCalWin::TitleRect() const { return {0, 0, width(), height() / kTitleShare}; }

// Makes month and layout anew if settings or size were changed.
void CPrefCalWin::Prepare() {
  if (!m_isOutdated) return;
  m_isOutdated = false;
  m_sample = MakeSample(m_kind, m_edited);
  const MonthLayout layout(width(), height() - TitleRect().height(), m_edited.display.showWeekNumber,
                           m_edited.rules.iso8601);
  m_painter.SetUp(layout, m_edited.display, font(), CMonthPainter::kScreen);
  const ScopedRules inForce(m_edited.rules);
  m_painter.SetTexts(m_sample.month, m_sample.content);
}

const SampleMonth& CPrefCalWin::Sample() {
  Prepare();
  return m_sample;
}

QRect CPrefCalWin::DayRect(int month, int day) {
  Prepare();
  const int cell = m_sample.month.CellOf(month, day);
  if (cell == kNoCell) return {};
  return ToQRect(m_painter.Layout().CellRect(cell)).translated(0, TitleRect().height());
}

PreviewElement CPrefCalWin::ElementAt(QPoint position) {
  Prepare();
  if (!rect().contains(position)) return kNoElement;
  if (TitleRect().contains(position)) return kElementTitle;
  const MonthLayout& layout = m_painter.Layout();
  const QPoint inMonth = position - QPoint(0, TitleRect().height());
  if (inMonth.y() < layout.rowHeight) return kElementHeader;
  const int cell = layout.CellAt(inMonth.x(), inMonth.y());
  const bool isRightOfDays = inMonth.x() >= kColumns * layout.columnWidth;
  if (isRightOfDays && layout.showWeekNumber) return kElementWeekNumber;
  if (cell == kNoCell || cell >= kCellCount) return kNoElement;
  const DayCell& day = m_sample.month.cells[static_cast<std::size_t>(cell)];
  if (day.day == 0) return kNoElement;
  if (day.month != m_sample.month.month) return kElementOtherMonth;
  if (cell == m_sample.month.CellOf(m_sample.marks.month, m_sample.marks.day)) return kElementMark;
  if ((day.marks & kVacationMark) != 0) return kElementVacation;
  if ((day.marks & kHolidayMark) != 0) return kElementHoliday;
  return (day.marks & kEventMark) != 0 ? kElementEvent : kElementNormalDay;
}

bool CPrefCalWin::event(QEvent* event) {
  if (event->type() == QEvent::ToolTip && m_isClickable) {
    const auto* const help = static_cast<QHelpEvent*>(event);
    const PreviewElement element = ElementAt(help->pos());
    QToolTip::showText(help->globalPos(),
                       element == kNoElement
                           ? QString()
                           : TipMarkup(TableText(kTextElementTip, {ElementName(element).toStdU16String()})),
                       this);
    return true;
  }
  return QWidget::event(event);
}

void CPrefCalWin::paintEvent(QPaintEvent*) {
  Prepare();
  QPainter painter(this);
  PaintTitle(painter, TitleRect(), TitleRect().height() / 2, m_sample.title, m_edited.display, font());
  painter.translate(0, TitleRect().height());
  {
    const ScopedRules inForce(m_edited.rules);
    m_painter.Paint(painter, m_sample.month, m_sample.marks);
  }
  painter.end();
  m_background.Read();
}

void CPrefCalWin::resizeEvent(QResizeEvent*) { m_isOutdated = true; }

void CPrefCalWin::mousePressEvent(QMouseEvent* event) {
  const PreviewElement element = ElementAt(PixelAt(event->position()));
  const bool isOurs = event->button() == Qt::LeftButton || event->button() == Qt::RightButton;
  if (m_isClickable && isOurs && element != kNoElement) emit elementClicked(element, event->button());
}

}  // namespace orbisol
