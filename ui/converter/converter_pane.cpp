#include "ui/converter/converter_pane.h"

#include <QApplication>
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
#include <QStyle>
#include <QStyleOptionFrame>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

#include "content/selected_date.h"
#include "core/civil_year.h"
#include "core/date_text.h"
#include "core/republican.h"
#include "resources/strings.h"
#include "settings/display_settings.h"
#include "ui/toolkit/colors.h"
#include "ui/toolkit/plain_text.h"
#include "ui/toolkit/selectable_label.h"
#include "ui/window/tool_icons.h"
#include "ui/toolkit/calendar_group.h"

namespace orbisol {
namespace {

// Pieces of kTextConverterNames.
enum { kNameDay, kNameMonth, kNameYear, kNameKept, kNameDifference };

constexpr int kMonthDays = 30;  // of every Republican month

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

// Of the longest line that ends with a date.
int ProlepticWidth(const QFontMetrics& metrics) {
  int widest = 0;
  for (int month = 1; month <= 12; ++month) {
    const std::u16string date = DayMonthYear(Selected().dateOrder, 30, MonthName(month), -3999);
    widest = std::max(widest, metrics.horizontalAdvance(TableText(kTextProlepticGregorian, {date})));
  }
  return widest;
}

// Of a field in which `text` is seen whole.
int FieldWidth(const QLineEdit& field, const QString& text) {
  QStyleOptionFrame option;
  option.initFrom(&field);
  option.lineWidth = field.style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, &field);
  constexpr int kTextMargin = 2;  // of the toolkit, at each side
  constexpr int kCursor = 1;
  const QSize inside(field.fontMetrics().horizontalAdvance(text) + 2 * kTextMargin + kCursor,
                     field.fontMetrics().height());
  return field.style()->sizeFromContents(QStyle::CT_LineEdit, &option, inside, &field).width();
}

// How a screen reader tells the fields apart; it takes the name of a list for what is chosen in it.
void NameField(QWidget* field, int piece) {
  const QString name = TablePiece(kTextConverterNames, piece);
  field->setAccessibleName(name);
  if (qobject_cast<QComboBox*>(field) != nullptr) field->setAccessibleDescription(name);
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
  m_julian = new CSelectableLabel;
  m_dayNumber = new CSelectableLabel;
  m_dayNumber->setFocusPolicy(Qt::StrongFocus);  // no command copies it: the keyboard must get there
  m_proleptic = new CSelectableLabel;
  KeepRoom(m_proleptic);
  auto* const column = new QVBoxLayout;
  for (QLabel* const line : {m_julian, m_dayNumber, m_proleptic}) column->addWidget(line);
  return MakeGroup(kTextJulianGroup, column);
}

QGroupBox* CConverterPane::MakeRepublicanGroup() {
  m_republican = new CSelectableLabel;
  m_entry = new QCheckBox(TableText(kTextRepublicanEntry));
  KeepRoom(m_entry);
  connect(m_entry, &QCheckBox::clicked, this, &CConverterPane::ShowRepublicanEntry);

  m_day = new QComboBox;
  NameField(m_day, kNameDay);
  m_day->setMinimumContentsLength(2);
  m_day->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  m_month = new QComboBox;
  NameField(m_month, kNameMonth);
  for (int month = 0; month <= kComplementaryMonth; ++month)
    m_month->addItem(ToQString(RepublicanMonthName(month)));
  m_month->setMaxVisibleItems(kComplementaryMonth + 1);
  connect(m_month, &QComboBox::currentIndexChanged, this, &CConverterPane::FillRepublicanDays);
  m_year = new QLineEdit;
  NameField(m_year, kNameYear);
  m_year->setValidator(
      new QRegularExpressionValidator(QRegularExpression(QStringLiteral("[+-]?[0-9]{0,9}")), m_year));
  m_year->setAlignment(Qt::AlignRight);
  connect(m_year, &QLineEdit::textChanged, this, &CConverterPane::FillRepublicanDays);
  connect(m_year, &QLineEdit::returnPressed, this, &CConverterPane::GoToRepublicanDate);
  m_go = new QPushButton(TableText(kTextGo));
  m_go->setAutoDefault(true);  // Enter presses it
  connect(m_go, &QPushButton::clicked, this, &CConverterPane::GoToRepublicanDate);

  m_entryRow = new QWidget;
  auto* const row = new QHBoxLayout(m_entryRow);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(4);
  row->addWidget(m_day);
  row->addWidget(m_month, 1);
  row->addWidget(m_year);
  row->addWidget(m_go);
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
  NameField(m_kept, kNameKept);
  m_kept->installEventFilter(this);
  m_difference = new QLineEdit;
  m_difference->setReadOnly(true);
  m_difference->setAlignment(Qt::AlignRight);
  NameField(m_difference, kNameDifference);
  auto* const row = new QHBoxLayout;
  row->addWidget(m_keep);
  row->addWidget(m_kept, 1);
  row->addWidget(m_difference);
  return MakeGroup(kTextDifferenceGroup, row);
}

QWidget* CConverterPane::MakeButtons() {
  const auto make = [this](int textId, auto date) {
    auto* const button = new QPushButton(TableText(textId));
    button->setAutoDefault(true);  // Enter presses it
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

bool CConverterPane::IsEntry() const { return m_entry->isChecked(); }

void CConverterPane::SettingsChanged() {
  FitToFont();
  ShowKeepButton();
}

void CConverterPane::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) FitToFont();
}

void CConverterPane::FitToFont() {
  m_proleptic->setMinimumWidth(ProlepticWidth(m_proleptic->fontMetrics()));
  m_republican->setMinimumHeight(2 * m_republican->fontMetrics().lineSpacing());
  m_year->setFixedWidth(FieldWidth(*m_year, QStringLiteral("-00000")));
  m_difference->setFixedWidth(FieldWidth(*m_difference, QStringLiteral("-0 000 000")));
  constexpr int kNarrowMargin = 10;  // styles make a button of one word far too wide for its row
  m_go->setFixedWidth(m_go->fontMetrics().horizontalAdvance(m_go->text()) + 2 * kNarrowMargin);
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
  if (republican.isEmpty()) {
    // What is hidden with the focus would hand it on to the next control, which nobody chose.
    QWidget* const focused = QApplication::focusWidget();
    if (focused == m_entry || m_entryRow->isAncestorOf(focused)) m_host->FocusMonth();
    m_entry->setChecked(false);
    ShowRepublicanEntry(false);
  }
  m_entry->setVisible(!republican.isEmpty());
  if (IsEntry()) LoadRepublicanDate();
  ShowKeptDate();
}

void CConverterPane::ShowRepublicanEntry(bool isShown) {
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
  GoTo(FromRepublican(year, m_month->currentIndex() + 1, m_day->currentIndex() + 1).Packed());
}

void CConverterPane::KeepDate(bool isKept) {
  m_keptDate = isKept ? Selected().Packed() : 0;
  ShowKeepButton();
  ShowKeptDate();
  m_host->FocusMonth();
}

void CConverterPane::ShowKeepButton() {
  const bool isKept = m_keptDate != 0;
  const QString action = TablePiece(kTextKeepDate, isKept ? 1 : 0);
  m_keep->setIcon(ToolIcon(isKept ? "kept" : "keep", ToQColor(Display().ColorAt(kColorCalHeader))));
  m_keep->setToolTip(TipMarkup(action));
  m_keep->setAccessibleName(TablePiece(kTextKeepDate, 0));
  m_keep->setAccessibleDescription(action);  // else readers are given the tip with its markup
}

// The date is written anew each time: the calendar rules may have changed how it is called.
void CConverterPane::ShowKeptDate() {
  if (m_keptDate == 0) {
    m_kept->clear();
    m_difference->clear();
    return;
  }
  const Date kept(m_keptDate);
  m_kept->setText(
      ToQString(DayMonthYear(Selected().dateOrder, kept.day, MonthName(kept.month), CivilYearOf(kept))));
  m_difference->setText(GroupedNumber(Selected().DayNumber() - kept.DayNumber()));
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
    // Only where the user went there: a menu that closes, an editor or a window that gives the focus back
    // moves nothing.
    const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
    if (reason == Qt::MouseFocusReason || reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason ||
        reason == Qt::ShortcutFocusReason)
      GoToKeptDate();
  }
  return QWidget::eventFilter(watched, event);
}

}  // namespace orbisol
