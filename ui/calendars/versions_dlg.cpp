#include "ui/calendars/versions_dlg.h"

#include <QPushButton>
#include <QSignalBlocker>

#include <algorithm>

#include "core/date_text.h"
#include "files/calendar_difference.h"
#include "resources/help/help_pages.h"
#include "resources/strings.h"
#include "ui/toolkit/plain_text.h"
#include "ui/window/help.h"
#include "ui_versions.h"

namespace orbisol {
namespace {

constexpr int kListRows = 8;
constexpr int kListChars = 96;
constexpr int kColumnGap = 2;  // in characters
constexpr int kDifferenceRows = 8;

// Pieces of kTextVersions.
enum VersionText { kHeading, kMoment, kNoVersion };

QString MomentText(const LocalMoment& moment) {
  const std::u16string day = LongDate(Date(Pack(moment.day.year, moment.day.month, moment.day.day)), false);
  const std::u16string minute = FormatText(u"%d%d", {moment.minute / 10, moment.minute % 10});
  return ToQString(FormatText(Piece(StringText(kTextVersions), u'|', kMoment), {day, moment.hour, minute}));
}

// Returns one count of kTextVersionHolds, which has three forms for each.
QString CountText(int first, std::ptrdiff_t count) {
  const int form = static_cast<int>(std::min<std::ptrdiff_t>(count, 2));
  return ToQString(FormatText(Piece(StringText(kTextVersionHolds), u'|', first + form), {count}));
}

QString ContentText(const CalendarContent& content) {
  const auto holidays = std::count_if(content.dayEvents.begin(), content.dayEvents.end(),
                                      [](const DayEvent& event) { return event.isPublic; });
  const auto events = static_cast<std::ptrdiff_t>(content.dayEvents.size()) - holidays;
  const auto periods = static_cast<std::ptrdiff_t>(content.vacations.size());
  return CountText(0, holidays) + QStringLiteral(", ") + CountText(3, events) + QStringLiteral(", ") +
         CountText(6, periods);
}

}  // namespace

CVersionsDlg::CVersionsDlg(CCalendarActions& actions, std::u16string_view name, QWidget* parent)
    : QDialog(parent), m_actions(actions), m_name(name), m_form(new Ui::Versions) {
  m_form->setupUi(this);
  const QFontMetrics metrics = fontMetrics();
  m_form->versions->setMinimumSize(metrics.averageCharWidth() * kListChars,
                                   metrics.lineSpacing() * (kListRows + 1));
  m_form->difference->setMinimumHeight(metrics.lineSpacing() * (kDifferenceRows + 1));
  AddHelpKey(*this, kHelpVersions);
  connect(m_form->buttons, &QDialogButtonBox::helpRequested, this, [] { ShowHelp(kHelpVersions); });
  connect(m_form->versions, &QTreeWidget::itemSelectionChanged, this, &CVersionsDlg::ShowDifference);
  connect(m_form->restore, &QPushButton::clicked, this, &CVersionsDlg::OnRestore);
  Fill();
  m_form->buttons->button(QDialogButtonBox::Close)->setDefault(true);
  m_form->versions->setFocus();
}

CVersionsDlg::~CVersionsDlg() = default;

void CVersionsDlg::Fill() {
  // A list that is emptied goes from row to row, which would compare with versions that are gone.
  const QSignalBlocker comparesOnce(m_form->versions);
  m_form->heading->setText(
      ToQString(FormatText(Piece(StringText(kTextVersions), u'|', kHeading), {Utf16View(MenuText(m_name))})));
  m_state = m_actions.StateOf(m_name);
  m_rows.clear();
  m_form->versions->clear();
  for (const CalendarVersion& version : m_actions.Versions().List(m_name)) {
    const std::optional<std::string> bytes = m_actions.Versions().Read(m_name, version);
    if (!bytes) continue;
    m_rows.push_back({version, ReadCalendar(*bytes)});
    new QTreeWidgetItem(m_form->versions,
                        {MomentText(version.kept), ContentText(m_rows.back().calendar.content)});
  }
  m_form->versions->resizeColumnToContents(0);
  const int gap = fontMetrics().averageCharWidth() * kColumnGap;
  m_form->versions->setColumnWidth(0, m_form->versions->columnWidth(0) + gap);
  if (!m_rows.empty()) m_form->versions->setCurrentItem(m_form->versions->topLevelItem(0));
  ShowDifference();
}

void CVersionsDlg::ShowDifference() {
  const int row = m_form->versions->indexOfTopLevelItem(m_form->versions->currentItem());
  m_form->restore->setEnabled(row >= 0);
  m_form->versions->setEnabled(!m_rows.empty());
  if (row < 0) {
    m_form->difference->setPlainText(TablePiece(kTextVersions, kNoVersion));
    return;
  }
  const CalendarFile& version = m_rows[static_cast<std::size_t>(row)].calendar;
  QStringList lines;
  for (const std::u16string& line : DifferenceLines(DifferenceOf(m_state, version)))
    lines.append(ToQString(line));
  m_form->difference->setPlainText(lines.join(QLatin1Char('\n')));
}

// The state that was replaced stands first in the list afterwards, and can be restored in turn. The calendar
// in use may have gone to another name, to keep both.
void CVersionsDlg::OnRestore() {
  const int row = m_form->versions->indexOfTopLevelItem(m_form->versions->currentItem());
  if (row < 0) return;
  const bool isCurrent = m_actions.IsCurrent(m_name);
  m_actions.Restore(m_name, m_rows[static_cast<std::size_t>(row)].version);
  if (isCurrent) m_name = m_actions.CurrentName();
  emit restored();
  Fill();
}

}  // namespace orbisol
