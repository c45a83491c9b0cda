#include "ui/editors/import_holidays_dlg.h"

#include <QPushButton>
#include <QScrollBar>

#include <algorithm>
#include <utility>

#include "content/import_holidays.h"
#include "content/rule_dates.h"
#include "core/date_text.h"
#include "core/platform.h"
#include "resources/help/help_pages.h"
#include "resources/strings.h"
#include "ui/toolkit/french_order.h"
#include "ui/toolkit/messages.h"
#include "ui/toolkit/plain_text.h"
#include "ui/window/help.h"
#include "ui_import_holidays.h"

namespace orbisol {
namespace {

constexpr int kListRows = 10;
constexpr int kListChars = 38, kMostListChars = 60;  // width of the list of calendars
constexpr int kDaysChars = 56;                       // and of the days

// Pieces of kTextImportHolidays.
enum ImportText { kNothingChosen, kUnreadable, kNoDescription, kDaysOfYear, kNoCalendars, kNoneFound };

struct NamedDay {
  PackedDate date;
  std::u16string name;
};

std::vector<NamedDay> DaysOfYear(const CalendarContent& content, int year) {
  std::vector<NamedDay> days;
  for (const DayEvent& rule : content.dayEvents)
    for (const PackedDate date : RuleDatesInYear(rule, year))
      days.push_back({date, std::u16string(rule.name.View())});
  std::stable_sort(days.begin(), days.end(),
                   [](const NamedDay& a, const NamedDay& b) { return DayOrder(a.date) < DayOrder(b.date); });
  return days;
}

QString DayText(PackedDate date) {
  const YearMonthDay parts = Unpack(date);
  const std::u16string_view pattern = Piece(StringText(kTextDayOfMonth), u'|', parts.day == 1 ? 1 : 0);
  const std::u16string month = MonthName(parts.month);
  const std::u16string day =
      parts.day == 1 ? FormatText(pattern, {month}) : FormatText(pattern, {parts.day, month});
  return ToQString(WeekdayName(Date(date).Weekday(true)) + u" " + day);
}

void GiveRoom(QWidget& widget, int chars, int rows) {
  const QFontMetrics metrics = widget.fontMetrics();
  widget.setMinimumSize(metrics.averageCharWidth() * chars, metrics.lineSpacing() * (rows + 1));
}

// Makes a list as wide as its longest name, within bounds.
void GiveNamesRoom(QListWidget& list) {
  const int charWidth = list.fontMetrics().averageCharWidth();
  const int names =
      list.sizeHintForColumn(0) + list.verticalScrollBar()->sizeHint().width() + 2 * list.frameWidth();
  list.setMinimumWidth(std::clamp(names, kListChars * charWidth, kMostListChars * charWidth));
}

}  // namespace

CEvtImportDlg::CEvtImportDlg(const CPublicCalendars& publicCalendars, QWidget* parent)
    : QDialog(parent), m_publicCalendars(publicCalendars), m_form(new Ui::ImportHolidays) {
  m_form->setupUi(this);
  GiveRoom(*m_form->calendars, kListChars, kListRows);
  GiveRoom(*m_form->days, kDaysChars, kListRows);
  m_form->info->setMinimumHeight(m_form->info->fontMetrics().lineSpacing() * 4);
  AddHelpKey(*this, kHelpImportHolidays);
  connect(m_form->buttons, &QDialogButtonBox::helpRequested, this, [] { ShowHelp(kHelpImportHolidays); });
  connect(m_form->search, &QLineEdit::textChanged, this, &CEvtImportDlg::Filter);
  connect(m_form->calendars, &QListWidget::itemSelectionChanged, this, &CEvtImportDlg::ShowChosen);
  connect(m_form->calendars, &QListWidget::itemDoubleClicked, this, &CEvtImportDlg::accept);
  Fill();
  GiveNamesRoom(*m_form->calendars);
  ShowChosen();
  m_form->search->setFocus();
}

CEvtImportDlg::~CEvtImportDlg() = default;

void CEvtImportDlg::Fill() {
  m_calendars = m_publicCalendars.List();
  const CFrenchOrder before;
  std::sort(m_calendars.begin(), m_calendars.end(), [&](const PublicCalendar& a, const PublicCalendar& b) {
    return before(ToQString(a.name), ToQString(b.name));
  });
  for (const PublicCalendar& calendar : m_calendars) m_form->calendars->addItem(ToQString(calendar.name));
}

// The first that fits is chosen, so that a few letters and Enter are enough.
void CEvtImportDlg::Filter(const QString& words) {
  const std::u16string sought = Folded(Utf16View(words.trimmed()));
  QListWidget& list = *m_form->calendars;
  int first = -1;
  for (int row = 0; row < list.count(); ++row) {
    const bool fits =
        Folded(m_calendars[static_cast<std::size_t>(row)].name).find(sought) != std::u16string::npos;
    list.item(row)->setHidden(!fits);
    if (fits && first < 0) first = row;
  }
  const bool isChosenHidden = list.currentItem() == nullptr || list.currentItem()->isHidden();
  if (first < 0 || sought.empty())
    list.setCurrentRow(isChosenHidden ? -1 : list.currentRow());
  else if (isChosenHidden)
    list.setCurrentRow(first);
  ShowChosen();
}

void CEvtImportDlg::ShowChosen() {
  const QListWidget& list = *m_form->calendars;
  const bool isChosen = !list.selectedItems().isEmpty() && !list.selectedItems().first()->isHidden();
  m_shown.reset();
  m_form->days->clear();
  const int year = CurrentPlatform().clock->Today().year;
  m_form->daysLabel->setText(TablePiece(kTextImportHolidays, kDaysOfYear).arg(year));
  m_form->calendars->setEnabled(!m_calendars.empty());
  if (!isChosen) {
    const bool isHiddenAll = !m_calendars.empty() && !m_form->search->text().trimmed().isEmpty();
    const int text = m_calendars.empty() ? kNoCalendars : isHiddenAll ? kNoneFound : kNothingChosen;
    m_form->info->setPlainText(TablePiece(kTextImportHolidays, text));
    return;
  }
  m_shown = m_publicCalendars.Load(m_calendars[static_cast<std::size_t>(list.currentRow())].path);
  if (!m_shown) {
    m_form->info->setPlainText(TablePiece(kTextImportHolidays, kUnreadable));
    return;
  }
  m_form->info->setPlainText(m_shown->info.empty() ? TablePiece(kTextImportHolidays, kNoDescription)
                                                   : ToQString(m_shown->info));
  for (const NamedDay& day : DaysOfYear(m_shown->content, year)) {
    auto* const row = new QTreeWidgetItem(m_form->days, {DayText(day.date), ToQString(day.name)});
    row->setToolTip(1, TipMarkup(ToQString(day.name)));
  }
  m_form->days->resizeColumnToContents(0);
  m_form->days->setColumnWidth(0, m_form->days->columnWidth(0) + fontMetrics().averageCharWidth());
}

void CEvtImportDlg::accept() {
  if (!m_shown) {
    Messages().Beep();
    return;
  }
  const auto isPersonal = [](const DayEvent& event) { return !event.isPublic; };
  const auto personal = static_cast<std::size_t>(
      std::count_if(m_shown->content.dayEvents.begin(), m_shown->content.dayEvents.end(), isPersonal));
  const PublicCalendar& calendar = m_calendars[static_cast<std::size_t>(m_form->calendars->currentRow())];
  if (personal > kManyPersonalEvents &&
      Messages().Choose(this, TableText(kTextManyPersonalEvents, {calendar.name, static_cast<int>(personal)}),
                        {TablePiece(kTextManyPersonalEventsButton, 0)}) != 0)
    return;
  m_choice = HolidayImport{calendar.path, m_shown->content, m_form->replaces->isChecked()};
  QDialog::accept();
}

bool ImportHolidaysInto(QWidget* parent, const CPublicCalendars& publicCalendars, CalendarContent& content) {
  CEvtImportDlg dialog(publicCalendars, parent);
  if (dialog.exec() != QDialog::Accepted || !dialog.Choice()) return false;
  const CalendarContent before = content;
  ImportHolidays(content, dialog.Choice()->holidays, dialog.Choice()->replaces);
  return content != before;
}

}  // namespace orbisol
