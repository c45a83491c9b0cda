#include "ui/converter/republican_entry.h"

#include <QComboBox>
#include <QEvent>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QRegularExpressionValidator>
#include <QSignalBlocker>

#include <algorithm>

#include "resources/strings.h"
#include "ui/converter/group_parts.h"
#include "ui/toolkit/plain_text.h"

namespace orbisol {
namespace {

constexpr int kMonthDays = 30;  // length of every Republican month

}  // namespace

CRepublicanEntry::CRepublicanEntry(QWidget* parent)
    : QWidget(parent),
      m_day(new QComboBox),
      m_month(new QComboBox),
      m_year(new QLineEdit),
      m_go(MakeButton(kTextGo)) {
  NameField(m_day, kFieldDay);
  m_day->setMinimumContentsLength(2);
  m_day->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  NameField(m_month, kFieldMonth);
  for (int month = 0; month <= kComplementaryMonth; ++month)
    m_month->addItem(ToQString(RepublicanMonthName(month)));
  m_month->setMaxVisibleItems(kComplementaryMonth + 1);
  NameField(m_year, kFieldYear);
  m_year->setValidator(
      new QRegularExpressionValidator(QRegularExpression(QStringLiteral("[+-]?[0-9]{0,9}")), m_year));
  m_year->setAlignment(Qt::AlignRight);

  auto* const row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(4);
  row->addWidget(m_day);
  row->addWidget(m_month, 1);
  row->addWidget(m_year);
  row->addWidget(m_go);
  FitToFont();

  connect(m_month, &QComboBox::currentIndexChanged, this, &CRepublicanEntry::FillDays);
  connect(m_year, &QLineEdit::textChanged, this, &CRepublicanEntry::FillDays);
  connect(m_year, &QLineEdit::returnPressed, this, &CRepublicanEntry::Enter);
  connect(m_go, &QPushButton::clicked, this, &CRepublicanEntry::Enter);
}

void CRepublicanEntry::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) FitToFont();
}

void CRepublicanEntry::FitToFont() {
  m_year->setFixedWidth(FieldWidth(*m_year, QStringLiteral("-00000")));
  constexpr int kNarrowMargin = 10;  // in pixels; by default a button of one word is too wide for its row
  m_go->setFixedWidth(m_go->fontMetrics().horizontalAdvance(m_go->text()) + 2 * kNarrowMargin);
}

int CRepublicanEntry::Year() const {
  return std::clamp(ParseDecimal(Utf16View(m_year->text())), 1, kLastRepublicanYear);
}

void CRepublicanEntry::Load(const RepublicanDate& date) {
  {
    const QSignalBlocker month(m_month);
    const QSignalBlocker year(m_year);
    m_month->setCurrentIndex(date.monthIndex);
    m_year->setText(QString::number(date.year));
  }
  FillDays();
  m_day->setCurrentIndex(date.dayIndex);
}

// Fills the list with the days of the month and year in the fields; a chosen day beyond them becomes the
// last.
void CRepublicanEntry::FillDays() {
  const int days = m_month->currentIndex() == kComplementaryMonth ? ComplementaryDays(Year()) : kMonthDays;
  const int chosen = std::max(m_day->currentIndex(), 0);
  while (m_day->count() > days) m_day->removeItem(m_day->count() - 1);
  while (m_day->count() < days) m_day->addItem(QString::number(m_day->count() + 1));
  m_day->setCurrentIndex(std::min(chosen, days - 1));
}

void CRepublicanEntry::Enter() {
  const int year = Year();
  m_year->setText(QString::number(year));
  emit dateEntered(FromRepublican(year, m_month->currentIndex() + 1, m_day->currentIndex() + 1).Packed());
}

}  // namespace orbisol
