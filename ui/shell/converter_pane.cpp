#include "ui/shell/converter_pane.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFocusEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QRegularExpressionValidator>
#include <QSignalBlocker>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

#include "content/selected_date.h"
#include "core/civil_year.h"
#include "core/date_text.h"
#include "core/republican.h"
#include "resources/strings.h"
#include "settings/display_settings.h"
#include "ui/common/plain_text.h"
#include "ui/common/tool_icons.h"
#include "ui/month/month_painter.h"
#include "ui/shell/calendar_group.h"

namespace orbisol {
namespace {

// Pieces of kTextConverterNames.
enum { kNameDay, kNameMonth, kNameYear, kNameKept, kNameDifference };

constexpr PackedDate kFirstDayOfEra = 10101;
constexpr PackedDate kFirstJulianDay = -440101;  // astronomical: 1 January 45 BC
constexpr int kMonthDays = 30;                   // of every Republican month

QLabel* MakeLine() {
  auto* const label = new QLabel;
  label->setTextFormat(Qt::PlainText);
  label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  // What can be selected with the keyboard would be a stop of Tab: one click comes first instead.
  label->setFocusPolicy(Qt::ClickFocus);
  return label;
}

// The room of a control stays empty while it is hidden, so that nothing below it moves.
void KeepRoom(QWidget* widget) {
  QSizePolicy policy = widget->sizePolicy();
  policy.setRetainSizeWhenHidden(true);
  widget->setSizePolicy(policy);
}

QGroupBox* MakeGroup(int textId, QLayout* layout) {
  auto* const group = new CCalendarGroup(TableText(textId));
  layout->setContentsMargins(8, 4, 8, 6);
  layout->setSpacing(3);
  group->setLayout(layout);
  return group;
}

// The widest of a text with each of the locale's months in it.
template <class MakeText>
int WidestMonthText(const QLabel& label, MakeText text) {
  int widest = 0;
  for (int month = 1; month <= 12; ++month)
    widest = std::max(widest, label.fontMetrics().horizontalAdvance(text(month)));
  return widest;
}

}  // namespace

std::u16string ProlepticGregorianText(const Date& date) {
  constexpr PackedDate kBeforeAllDates = -47990101;
  const int dayNumber = date.DayNumber();
  CalendarRules rules;
  rules.iso8601 = Rules().iso8601;
  rules.ApplyGregorianStart(kBeforeAllDates);
  const ScopedRules inForce(rules);
  return LongDate(DateOfDayNumber(dayNumber), true);
}

CConverterPane::CConverterPane(PaneHost* host, QWidget* parent) : QWidget(parent), m_host(host) {
  auto* const column = new QVBoxLayout(this);
  column->setContentsMargins(0, 5, 7, 5);
  column->setSpacing(6);
  column->addWidget(MakeJulianGroup());
  column->addWidget(MakeRepublicanGroup());
  column->addWidget(MakeDifferenceGroup());
  column->addWidget(MakeButtons());
  column->addStretch(1);
  SettingsChanged();
  Refresh();
}

QGroupBox* CConverterPane::MakeJulianGroup() {
  m_julian = MakeLine();
  m_dayNumber = MakeLine();
  m_proleptic = MakeLine();
  KeepRoom(m_proleptic);
  m_proleptic->setMinimumWidth(WidestMonthText(*m_proleptic, [](int month) {
    return TableText(kTextProlepticGregorian, {DayMonthYear(1, 30, MonthName(month), -3999)});
  }));
  auto* const column = new QVBoxLayout;
  for (QLabel* const line : {m_julian, m_dayNumber, m_proleptic}) column->addWidget(line);
  return MakeGroup(kTextJulianGroup, column);
}

QGroupBox* CConverterPane::MakeRepublicanGroup() {
  m_republican = MakeLine();
  m_republican->setMinimumHeight(2 * m_republican->fontMetrics().lineSpacing());
  m_entry = new QCheckBox(TableText(kTextRepublicanEntry));
  KeepRoom(m_entry);
  connect(m_entry, &QCheckBox::clicked, this, &CConverterPane::ShowRepublicanEntry);

  m_day = new QComboBox;
  m_day->setAccessibleName(TablePiece(kTextConverterNames, kNameDay));
  m_day->setMinimumContentsLength(2);
  m_day->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  m_month = new QComboBox;
  m_month->setAccessibleName(TablePiece(kTextConverterNames, kNameMonth));
  for (int month = 0; month <= kComplementaryMonth; ++month)
    m_month->addItem(ToQString(RepublicanMonthName(month)));
  m_month->setMaxVisibleItems(kComplementaryMonth + 1);
  connect(m_month, &QComboBox::currentIndexChanged, this, &CConverterPane::FillRepublicanDays);
  m_year = new QLineEdit;
  m_year->setAccessibleName(TablePiece(kTextConverterNames, kNameYear));
  m_year->setValidator(
      new QRegularExpressionValidator(QRegularExpression(QStringLiteral("[+-]?[0-9]{0,9}")), m_year));
  m_year->setAlignment(Qt::AlignRight);
  m_year->setFixedWidth(m_year->fontMetrics().horizontalAdvance(QStringLiteral("-00000")) + 12);
  connect(m_year, &QLineEdit::textChanged, this, &CConverterPane::FillRepublicanDays);
  connect(m_year, &QLineEdit::returnPressed, this, &CConverterPane::GoToRepublicanDate);
  auto* const go = new QPushButton(TableText(kTextGo));
  go->setFixedWidth(go->fontMetrics().horizontalAdvance(go->text()) + 20);
  connect(go, &QPushButton::clicked, this, &CConverterPane::GoToRepublicanDate);

  m_entryRow = new QWidget;
  auto* const row = new QHBoxLayout(m_entryRow);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(4);
  row->addWidget(m_day);
  row->addWidget(m_month, 1);
  row->addWidget(m_year);
  row->addWidget(go);
  KeepRoom(m_entryRow);
  m_entryRow->hide();

  auto* const column = new QVBoxLayout;
  column->addWidget(m_republican);
  column->addWidget(m_entry);
  column->addWidget(m_entryRow);
  return MakeGroup(kTextRepublicanGroup, column);
}

QGroupBox* CConverterPane::MakeDifferenceGroup() {
  m_keep = new QToolButton;
  m_keep->setCheckable(true);
  connect(m_keep, &QToolButton::clicked, this, &CConverterPane::KeepDate);
  m_kept = new QLineEdit;
  m_kept->setReadOnly(true);
  m_kept->setAlignment(Qt::AlignCenter);
  m_kept->setAccessibleName(TablePiece(kTextConverterNames, kNameKept));
  m_kept->installEventFilter(this);
  m_difference = new QLineEdit;
  m_difference->setReadOnly(true);
  m_difference->setAlignment(Qt::AlignRight);
  m_difference->setAccessibleName(TablePiece(kTextConverterNames, kNameDifference));
  m_difference->setFixedWidth(m_difference->fontMetrics().horizontalAdvance(QStringLiteral("-0 000 000")) +
                              14);
  auto* const row = new QHBoxLayout;
  row->addWidget(m_keep);
  row->addWidget(m_kept, 1);
  row->addWidget(m_difference);
  return MakeGroup(kTextDifferenceGroup, row);
}

QWidget* CConverterPane::MakeButtons() {
  const auto make = [this](int textId, auto date) {
    auto* const button = new QPushButton(TableText(textId));
    connect(button, &QPushButton::clicked, this, [this, date] { GoTo(date()); });
    return button;
  };
  QPushButton* const today = make(kTextToday, [] { return Date::Today().Packed(); });
  QPushButton* const republican = make(kTextFirstDayRepublican, [] { return kRepublicanEpoch; });
  QPushButton* const gregorian = make(kTextFirstDayGregorian, [] { return Rules().startGregorian; });
  QPushButton* const era = make(kTextFirstDayEra, [] { return kFirstDayOfEra; });
  QPushButton* const julian = make(kTextFirstDayJulian, [] { return kFirstJulianDay; });

  auto* const show = new QVBoxLayout;
  show->addWidget(today);
  show->addStretch(1);
  auto* const first = new QGridLayout;
  first->addWidget(republican, 0, 0);
  first->addWidget(gregorian, 0, 1);
  first->addWidget(era, 1, 0);
  first->addWidget(julian, 1, 1);

  auto* const both = new QWidget;
  auto* const row = new QHBoxLayout(both);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(6);
  row->addWidget(MakeGroup(kTextShowGroup, show));
  row->addWidget(MakeGroup(kTextFirstDayGroup, first), 1);
  return both;
}

QString CConverterPane::JulianText() const { return m_julian->text(); }

QString CConverterPane::RepublicanText() const { return m_republican->text(); }

void CConverterPane::SettingsChanged() {
  const QColor ink = ToQColor(Display().ColorAt(kColorCalHeader));
  m_keep->setIcon(ToolIcon(m_keptDate != 0 ? "kept" : "keep", ink));
  m_keep->setToolTip(TipMarkup(TablePiece(kTextKeepDate, m_keptDate != 0 ? 1 : 0)));
  m_keep->setAccessibleName(TablePiece(kTextKeepDate, 0));
}

void CConverterPane::Refresh() {
  const Date& date = Selected();
  const int dayNumber = date.DayNumber();
  m_julian->setText(ToQString(JulianLongDate(date, false)));
  m_dayNumber->setText(TableText(kTextJulianDayNumber, {dayNumber}));
  const bool isBeforeReform = dayNumber < Rules().firstGregorianDayNumber;
  m_proleptic->setText(isBeforeReform ? TableText(kTextProlepticGregorian, {ProlepticGregorianText(date)})
                                      : QString());
  m_proleptic->setVisible(isBeforeReform);

  const QString republican = ToQString(orbisol::RepublicanText(date));
  m_republican->setText(republican);
  m_entry->setVisible(!republican.isEmpty());
  if (republican.isEmpty() && m_isEntry) {
    m_entry->setChecked(false);
    ShowRepublicanEntry(false);
  }
  if (m_isEntry) LoadRepublicanDate();
  ShowDifference();
}

void CConverterPane::ShowRepublicanEntry(bool isShown) {
  m_isEntry = isShown;
  if (isShown) LoadRepublicanDate();
  m_entryRow->setVisible(isShown);
}

void CConverterPane::LoadRepublicanDate() {
  const RepublicanDate date = ToRepublican(Selected());
  {
    const QSignalBlocker month(m_month);
    const QSignalBlocker year(m_year);
    m_month->setCurrentIndex(date.monthIndex);
    m_year->setText(QString::number(date.year));
  }
  FillRepublicanDays();
  m_day->setCurrentIndex(date.dayIndex);
}

// The days of the month and year that stand in the entry; a day beyond them becomes the last.
void CConverterPane::FillRepublicanDays() {
  const int year = std::clamp(ParseDecimal(Units(m_year->text())), 1, kLastRepublicanYear);
  const int days = m_month->currentIndex() == kComplementaryMonth ? ComplementaryDays(year) : kMonthDays;
  const int chosen = std::max(m_day->currentIndex(), 0);
  while (m_day->count() > days) m_day->removeItem(m_day->count() - 1);
  while (m_day->count() < days) m_day->addItem(QString::number(m_day->count() + 1));
  m_day->setCurrentIndex(std::min(chosen, days - 1));
}

void CConverterPane::GoToRepublicanDate() {
  const int year = std::clamp(ParseDecimal(Units(m_year->text())), 1, kLastRepublicanYear);
  m_year->setText(QString::number(year));
  Date date = FromRepublican(year, m_month->currentIndex() + 1, m_day->currentIndex() + 1);
  ClampToBounds(date);
  GoTo(date.Packed());
}

void CConverterPane::KeepDate(bool isKept) {
  const Date& date = Selected();
  m_keptDate = isKept ? date.Packed() : 0;
  m_kept->setText(
      isKept ? ToQString(DayMonthYear(date.dateOrder, date.day, MonthName(date.month), CivilYearOf(date)))
             : QString());
  SettingsChanged();
  ShowDifference();
  m_host->FocusMonth();
}

void CConverterPane::ShowDifference() {
  m_difference->setText(
      m_keptDate == 0 ? QString() : GroupedNumber(Selected().DayNumber() - Date(m_keptDate).DayNumber()));
}

void CConverterPane::GoToKeptDate() {
  if (m_keptDate != 0) GoTo(m_keptDate);
}

void CConverterPane::GoTo(PackedDate date) {
  Selected().SetPacked(date);
  ClampToBounds(Selected());
  m_host->OnPaneDateChanged();
}

bool CConverterPane::eventFilter(QObject* watched, QEvent* event) {
  if (watched == m_kept && event->type() == QEvent::FocusIn) {
    // The user went there; the window that merely became active again, or a menu that closed, moves nothing.
    const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
    if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason) GoToKeptDate();
  }
  return QWidget::eventFilter(watched, event);
}

}  // namespace orbisol
