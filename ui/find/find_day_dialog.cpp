#include "ui/find/find_day_dialog.h"

#include <QElapsedTimer>
#include <QShortcut>

#include <algorithm>
#include <iterator>

#include "resources/help/help_pages.h"
#include "resources/strings.h"
#include "ui/find/hits_model.h"
#include "ui/toolkit/messages.h"
#include "ui/toolkit/plain_text.h"
#include "ui/window/help.h"
#include "ui_find_day.h"

namespace orbisol {
namespace {

constexpr int kSliceMilliseconds = 10;  // then keys and paints have their turn
constexpr int kLinesShown = 12;
constexpr int kLettersWide = 66;

enum FindText { kNone, kOne, kMany, kStopped, kTooMany, kNoNext, kNoPrevious };

QString CountText(FindText text, int hits) {
  const QString count = GroupedNumber(hits);
  const QString pattern = TablePiece(kTextFindDay, text);
  return ToQString(FormatText(Utf16View(pattern), {Utf16View(count)}));
}

}  // namespace

CFindDayDialog::CFindDayDialog(QWidget* parent)
    : QDialog(parent), m_form(std::make_unique<Ui::FindDayDialog>()), m_hits(new CHitsModel(this)) {
  m_form->setupUi(this);
  const QFontMetrics metrics = fontMetrics();
  m_form->hits->setMinimumSize(metrics.averageCharWidth() * kLettersWide, metrics.height() * kLinesShown);
  m_form->hits->setModel(m_hits);
  m_form->progress->setFixedWidth(metrics.averageCharWidth() * 20);
  m_slices.setInterval(0);
  connect(&m_slices, &QTimer::timeout, this, &CFindDayDialog::SearchSlice);
  m_steps.setInterval(0);
  connect(&m_steps, &QTimer::timeout, this, &CFindDayDialog::StepSlice);
  connect(m_form->text, &QLineEdit::textChanged, this, &CFindDayDialog::Start);
  connect(m_form->next, &QPushButton::clicked, this, &CFindDayDialog::FindNext);
  connect(m_form->previous, &QPushButton::clicked, this, &CFindDayDialog::FindPrevious);
  connect(m_form->stop, &QPushButton::clicked, this, &CFindDayDialog::Stop);
  connect(m_form->hits, &QListView::activated, this,
          [this](const QModelIndex& index) { ShowRow(index.row()); });
  connect(m_form->hits, &QListView::clicked, this,
          [this](const QModelIndex& index) { ShowRow(index.row()); });
  connect(m_form->buttons, &QDialogButtonBox::helpRequested, this, [] { ShowHelp(kHelpSearch); });
  AddHelpKey(*this, kHelpSearch);
  connect(new QShortcut(QKeySequence(Qt::Key_F3), this), &QShortcut::activated, this,
          &CFindDayDialog::FindNext);
  connect(new QShortcut(QKeySequence(Qt::SHIFT | Qt::Key_F3), this), &QShortcut::activated, this,
          &CFindDayDialog::FindPrevious);
  Finish(true);
}

CFindDayDialog::~CFindDayDialog() = default;

void CFindDayDialog::Open(const CalendarContent& content, PackedDate selected) {
  m_content = content;
  m_rules = Rules();
  m_selected = selected;
  show();
  raise();
  activateWindow();
  m_form->text->setFocus();
  m_form->text->selectAll();
  Start();
}

void CFindDayDialog::SetContent(const CalendarContent& content) {
  if (content == m_content && m_rules == Rules()) return;
  m_content = content;
  m_rules = Rules();
  Start();
}

void CFindDayDialog::SetSelected(PackedDate selected) {
  if (selected != m_selected) m_steps.stop();
  m_selected = selected;
}

// A window that is hidden makes its list when it is shown.
void CFindDayDialog::Start() {
  m_slices.stop();
  m_steps.stop();
  m_hits->Clear();
  m_search.emplace(m_content, Utf16View(m_form->text->text()));
  m_year = m_search->FirstYear();
  if (!isVisible() || m_year > m_search->LastYear()) return Finish(true);
  m_form->progress->setRange(m_year, m_search->LastYear());
  m_form->progress->setVisible(true);
  m_form->stop->setVisible(true);
  m_slices.start();
}

void CFindDayDialog::SearchSlice() {
  QElapsedTimer time;
  time.start();
  std::vector<SearchHit> found;
  while (m_year <= m_search->LastYear() && !time.hasExpired(kSliceMilliseconds)) {
    std::vector<SearchHit> hits = m_search->HitsInYear(m_year++);
    found.insert(found.end(), std::make_move_iterator(hits.begin()), std::make_move_iterator(hits.end()));
  }
  m_hits->Append(std::move(found));
  m_form->progress->setValue(m_year);
  const bool isFull = m_hits->rowCount() >= kMostHits;
  if (isFull || m_year > m_search->LastYear()) Finish(!isFull);
}

void CFindDayDialog::Stop() {
  m_steps.stop();
  if (m_slices.isActive()) Finish(false);
}

// Says how many days there are, and marks the one nearest to the selected date.
void CFindDayDialog::Finish(bool isWhole) {
  m_slices.stop();
  const bool hadFocus = m_form->stop->hasFocus();
  m_form->progress->setVisible(false);
  m_form->stop->setVisible(false);
  if (hadFocus) m_form->hits->setFocus();
  const int hits = m_hits->rowCount();
  const bool hasWord = !m_form->text->text().trimmed().isEmpty();
  m_form->next->setEnabled(hits > 0);
  m_form->previous->setEnabled(hits > 0);
  if (!hasWord) {
    m_form->message->clear();
  } else if (!isWhole) {
    m_form->message->setText(CountText(hits >= kMostHits ? kTooMany : kStopped, hits));
  } else {
    m_form->message->setText(CountText(hits == 0 ? kNone : hits == 1 ? kOne : kMany, hits));
  }
  const QModelIndex near = m_hits->index(m_hits->RowNear(m_selected));
  m_form->hits->setCurrentIndex(near);
  if (near.isValid()) m_form->hits->scrollTo(near, QAbstractItemView::PositionAtCenter);
}

void CFindDayDialog::hideEvent(QHideEvent* event) {
  Stop();
  QDialog::hideEvent(event);
}

void CFindDayDialog::FindNearest(int step) {
  if (!m_search || m_form->text->text().trimmed().isEmpty()) return Open(m_content, m_selected);
  if (m_steps.isActive() && step == m_step) return;  // it is on its way
  m_step = step;
  m_stepYear = std::min(std::max(Unpack(m_selected).year, m_search->FirstYear()), m_search->LastYear());
  m_steps.start();
  StepSlice();
}

void CFindDayDialog::StepSlice() {
  QElapsedTimer time;
  time.start();
  do {
    if (m_stepYear < m_search->FirstYear() || m_stepYear > m_search->LastYear()) {
      m_steps.stop();
      m_form->message->setText(TablePiece(kTextFindDay, m_step > 0 ? kNoNext : kNoPrevious));
      return Messages().Beep();
    }
    const std::optional<SearchHit> hit = m_step > 0 ? m_search->NextInYear(m_stepYear, m_selected)
                                                    : m_search->PreviousInYear(m_stepYear, m_selected);
    if (hit) return Show(*hit);
    m_stepYear += m_step;
  } while (!time.hasExpired(kSliceMilliseconds));
}

void CFindDayDialog::Show(const SearchHit& hit) {
  m_steps.stop();
  m_selected = hit.date;
  const QModelIndex row = m_hits->index(m_hits->RowNear(m_selected));
  m_form->hits->setCurrentIndex(row);
  emit dayFound(m_selected);
}

void CFindDayDialog::ShowRow(int row) {
  m_selected = m_hits->Hits()[static_cast<std::size_t>(row)].date;
  emit dayFound(m_selected);
}

}  // namespace orbisol
