#include "ui/converter/month_list.h"

#include <QKeyEvent>
#include <QListWidget>
#include <QVBoxLayout>

#include <algorithm>

#include "resources/strings.h"
#include "ui/converter/group_parts.h"
#include "ui/converter/month_line.h"
#include "ui/toolkit/keys.h"
#include "ui/toolkit/plain_text.h"
#include "ui/toolkit/thin_scroll_bar.h"

namespace orbisol {
namespace {

// A list that screen readers hear of while it has the keyboard. The toolkit's own reports each current line,
// and readers then speak of the list instead of the day that the user went to in the month.
class CQuietList : public QListWidget {
 protected:
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override {
    if (hasFocus()) {
      QListWidget::currentChanged(current, previous);
    } else {
      // On purpose: the grandparent does all but that report.
      QAbstractItemView::currentChanged(current, previous);  // NOLINT(bugprone-parent-virtual-call)
    }
  }
};

}  // namespace

CMonthList::CMonthList(QWidget* parent)
    : CCalendarGroup(TableText(kTextMonthList), parent), m_lines(new CQuietList) {
  m_lines->setAccessibleName(TableText(kTextMonthList));
  m_lines->setFrameShape(QFrame::NoFrame);
  m_lines->setItemDelegate(new CMonthLine(m_lines));
  m_lines->setUniformItemSizes(true);
  m_lines->setSelectionMode(QAbstractItemView::NoSelection);  // only the month has a selection
  m_lines->setMouseTracking(true);
  m_lines->viewport()->setCursor(Qt::PointingHandCursor);
  m_lines->viewport()->setAutoFillBackground(false);
  m_lines->setVerticalScrollBar(new CThinScrollBar(Qt::Vertical));
  m_lines->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
  m_lines->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  m_lines->setSizeAdjustPolicy(QAbstractScrollArea::AdjustToContents);
  m_lines->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Maximum);
  m_lines->installEventFilter(this);
  auto* const column = new QVBoxLayout;
  column->addWidget(m_lines);
  SetGroupLayout(this, column);
  setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Maximum);
  FitToFont();
  connect(m_lines, &QListWidget::clicked, this, [this](const QModelIndex& line) { Choose(line.row()); });
}

int CMonthList::LineHeight() const { return std::max(m_lines->sizeHintForRow(0), fontMetrics().height()); }

void CMonthList::FitToFont() { m_lines->setMinimumHeight(kLeastLines * LineHeight()); }

int CMonthList::HeightWithin(int height) const {
  const int least = minimumSizeHint().height();
  return least + std::max(0, height - least) / LineHeight() * LineHeight();
}

void CMonthList::changeEvent(QEvent* event) {
  CCalendarGroup::changeEvent(event);
  if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) FitToFont();
}

void CMonthList::Show(const MonthModel& month) {
  std::vector<Highlight> highlights = HighlightsOf(month);
  if (highlights == m_highlights) return;
  m_highlights = std::move(highlights);
  Fill();
  if (!m_lines->hasFocus()) GoToTop();
}

void CMonthList::SettingsChanged() { Fill(); }

void CMonthList::Fill() {
  const int line = m_lines->currentRow();
  m_lines->clear();
  for (const Highlight& highlight : m_highlights) {
    auto* const item = new QListWidgetItem(LineText(highlight), m_lines);
    const QString spoken = SpokenLine(highlight);
    item->setData(Qt::AccessibleTextRole, spoken);
    item->setData(Qt::ToolTipRole, TipMarkup(spoken));
    item->setData(CMonthLine::kDayRole, Unpack(highlight.date).day);
    item->setData(CMonthLine::kKindRole, static_cast<int>(highlight.kind));
    item->setData(CMonthLine::kMarkedRole, highlight.date == m_marked);
  }
  m_lines->setCurrentRow(std::clamp(line, 0, std::max(0, m_lines->count() - 1)));
  FitToFont();
  updateGeometry();
}

void CMonthList::MarkDate(PackedDate date) {
  m_marked = date;
  bool isFound = false;
  for (int i = 0; i < m_lines->count(); ++i) {
    const bool isMarked = !isFound && m_highlights[static_cast<std::size_t>(i)].date == date;
    isFound |= isMarked;
    m_lines->item(i)->setData(CMonthLine::kMarkedRole, isMarked);
    if (isMarked && !m_lines->hasFocus()) m_lines->setCurrentRow(i);
  }
  if (!isFound && !m_lines->hasFocus()) GoToTop();
}

// Brings the holidays back into view, which stand before the phases of the moon.
void CMonthList::GoToTop() {
  m_lines->setCurrentRow(0);
  m_lines->scrollToTop();
}

bool CMonthList::NamesHolidayFrom(PackedDate date) const {
  return std::any_of(m_highlights.begin(), m_highlights.end(), [&](const Highlight& highlight) {
    return highlight.kind == HighlightKind::kHoliday && DayOrder(highlight.date) >= DayOrder(date);
  });
}

void CMonthList::Choose(int line) {
  if (line >= 0) emit dateChosen(m_highlights[static_cast<std::size_t>(line)].date);
}

bool CMonthList::eventFilter(QObject* watched, QEvent* event) {
  if (watched == m_lines && event->type() == QEvent::KeyPress) {
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (IsEnter(key) || key == Qt::Key_Space) {
      Choose(m_lines->currentRow());
      return true;
    }
  }
  return CCalendarGroup::eventFilter(watched, event);
}

}  // namespace orbisol
