#include "ui/month/month_accessible.h"

#include <utility>

#include "content/selected_date.h"
#include "content/spoken_text.h"
#include "core/civil_year.h"
#include "core/date_text.h"
#include "resources/strings.h"
#include "settings/display_settings.h"
#include "ui/painting/month_texts.h"
#include "ui/toolkit/geometry.h"
#include "ui/toolkit/plain_text.h"

namespace orbisol {
namespace {

const DayCell& CellIn(const MonthModel& month, int cell) {
  return month.cells[static_cast<std::size_t>(cell)];
}

// Indices of the pieces of kTextWeekOf.
enum { kWeekTitle, kWeekNumber };

void (*g_spy)(QAccessibleEvent*) = nullptr;

void Emit(QAccessibleEvent& event) {
  if (g_spy != nullptr) {
    g_spy(&event);
  } else {
    QAccessible::updateAccessibility(&event);
  }
}

QAccessibleInterface* Make(const QString& className, QObject* object) {
  if (className != QLatin1String(CMonthWindow::staticMetaObject.className())) return nullptr;
  return new CMonthAccessible(static_cast<CMonthWindow*>(object));
}

}  // namespace

void InstallMonthAccessible() {
  [[maybe_unused]] static const bool isInstalled = [] {
    QAccessible::installFactory(Make);
    return true;
  }();
}

void NotifyScreenReader(CMonthWindow& window, MonthNews news) {
  if (g_spy == nullptr && !QAccessible::isActive()) return;
  if (auto* const table = dynamic_cast<CMonthAccessible*>(QAccessible::queryAccessibleInterface(&window)))
    table->Tell(news);
}

void SetAccessibilitySpy(void (*spy)(QAccessibleEvent* event)) { g_spy = spy; }

CMonthAccessible::CMonthAccessible(CMonthWindow* window) : QAccessibleWidget(window, QAccessible::Table) {}

CMonthAccessible::~CMonthAccessible() {
  for (const QAccessible::Id id : m_ids)
    if (id != 0) QAccessible::deleteAccessibleInterface(id);
}

CMonthWindow& CMonthAccessible::Window() const { return *static_cast<CMonthWindow*>(widget()); }

void* CMonthAccessible::interface_cast(QAccessible::InterfaceType type) {
  if (type == QAccessible::TableInterface) return static_cast<QAccessibleTableInterface*>(this);
  return QAccessibleWidget::interface_cast(type);
}

QString CMonthAccessible::text(QAccessible::Text kind) const {
  if (kind != QAccessible::Name) return QAccessibleWidget::text(kind);
  const Date& selected = Selected();
  const QString month = MonthAndYear(MonthTitle(selected.month), CivilYearOf(selected));
  const std::u16string missing = MissingDateText(selected);
  return missing.empty() ? month : month + QLatin1String(". ") + ToQString(missing);
}

QAccessible::State CMonthAccessible::state() const {
  QAccessible::State state = QAccessibleWidget::state();
  state.extSelectable = true;
  return state;
}

int CMonthAccessible::IndexOfCell(int cell) const {
  const int index = cell - Window().Places().firstCell;
  return cell == kNoCell || index >= kDayPlaces ? -1 : index;
}

CMonthItem* CMonthAccessible::Item(int index) const {
  if (index < 0 || index >= childCount()) return nullptr;
  QAccessible::Id& id = m_ids[static_cast<std::size_t>(index)];
  if (id == 0) id = QAccessible::registerAccessibleInterface(new CMonthItem(this, index));
  return static_cast<CMonthItem*>(QAccessible::accessibleInterface(id));
}

int CMonthAccessible::childCount() const {
  return Window().Places().showWeekNumber ? kMostChildren : kWeekHeader;
}

QAccessibleInterface* CMonthAccessible::child(int index) const { return Item(index); }

int CMonthAccessible::indexOfChild(const QAccessibleInterface* child) const {
  const auto* const item = dynamic_cast<const CMonthItem*>(child);
  if (item == nullptr || item->parent() != this || item->Index() >= childCount()) return -1;
  return item->Index();
}

QAccessibleInterface* CMonthAccessible::childAt(int x, int y) const {
  const QPoint position = Window().mapFromGlobal(QPoint(x, y));
  const MonthLayout& places = Window().Places();
  const int cell = places.CellAt(position.x(), position.y());
  if (cell != kNoCell) return ItemOfCell(cell);
  for (int index = kFirstName; index < childCount(); ++index)
    if (CMonthItem* const header = Item(index); header->rect().contains(x, y)) return header;
  return nullptr;
}

QAccessibleInterface* CMonthAccessible::focusChild() const {
  if (!Window().hasFocus()) return nullptr;
  return ItemOfCell(Window().SelectedCell());
}

QAccessibleInterface* CMonthAccessible::cellAt(int row, int column) const {
  const bool isPlace = row >= 0 && row < kMostChildren && column >= 0 && column < kColumns;
  CMonthItem* const item = isPlace ? Item(row * kColumns + column) : nullptr;
  return item != nullptr ? item : Item(0);
}

QString CMonthAccessible::columnDescription(int column) const {
  return column < 0 || column >= kColumns ? QString() : ColumnName(column, Window().Places().firstCell);
}

QString CMonthAccessible::rowDescription(int row) const {
  const MonthLayout& places = Window().Places();
  if (row < 0 || row >= kWeekRows || !places.showWeekNumber) return {};
  const int week = places.WeekOfRow(Window().Month(), row + 1);
  if (week == 0) return {};
  return ToQString(FormatText(Piece(StringText(kTextWeekOf), u'|', kWeekNumber), {week}));
}

int CMonthAccessible::selectedCellCount() const { return static_cast<int>(selectedCells().size()); }

QList<QAccessibleInterface*> CMonthAccessible::selectedCells() const {
  QList<QAccessibleInterface*> cells;
  for (int cell = Window().Places().firstCell; cell < kCellCount; ++cell)
    if (Window().IsSelected(cell)) cells << ItemOfCell(cell);
  return cells;
}

void CMonthAccessible::Send(QAccessible::Event type, int index) const {
  QAccessibleEvent event(object(), type);
  event.setChild(index);  // -1 is the table itself
  Emit(event);
}

void CMonthAccessible::Tell(MonthNews news) {
  constexpr int kTable = -1;
  CMonthWindow& window = Window();
  const Date& selected = Selected();
  const PackedDate month = Pack(selected.year, selected.month, 1);
  const bool isOtherMonth = month != std::exchange(m_toldMonth, month);

  if (const int children = childCount(); children != std::exchange(m_toldChildren, children)) {
    QAccessibleTableModelChangeEvent event(object(), QAccessibleTableModelChangeEvent::ModelReset);
    Emit(event);
  }
  if (isOtherMonth || news == MonthNews::kTexts) {
    QAccessibleTableModelChangeEvent event(object(), QAccessibleTableModelChangeEvent::DataChanged);
    event.setFirstRow(0);
    event.setLastRow(kWeekRows - 1);
    event.setFirstColumn(0);
    event.setLastColumn(kColumns - 1);
    Emit(event);
    // Readers keep the names they have asked for until they are told of a change.
    for (int index = 0; index < childCount(); ++index)
      if (m_ids[static_cast<std::size_t>(index)] != 0) Send(QAccessible::NameChanged, index);
  }

  for (int index = 0; index < kDayPlaces; ++index) {
    const auto bit = static_cast<std::size_t>(index);
    const bool isSelected = window.IsSelected(window.Places().firstCell + index);
    if (isSelected == m_toldSelected[bit]) continue;
    m_toldSelected[bit] = isSelected;
    Send(isSelected ? QAccessible::SelectionAdd : QAccessible::SelectionRemove, index);
  }

  if (const QString name = text(QAccessible::Name); name != std::exchange(m_toldName, name))
    Send(QAccessible::NameChanged, kTable);

  const int cell = window.SelectedCell();
  const bool isOtherCell = cell != std::exchange(m_toldCell, cell);
  // The day at the end of a range has a name that says how long the range is.
  const int end = window.HasRange() ? IndexOfCell(cell) : -1;
  const int endBefore = std::exchange(m_toldEnd, end);
  for (const int index : {endBefore, end})
    if (index >= 0 && m_ids[static_cast<std::size_t>(index)] != 0) Send(QAccessible::NameChanged, index);
  if (!window.hasFocus() || !(isOtherCell || isOtherMonth || news == MonthNews::kFocus)) return;
  // A reader is silent about the place that already has the focus, even if it shows another day now. Focus
  // that goes to the table first, which says the new month, comes back to the place anew.
  if (isOtherMonth || cell == kNoCell) Send(QAccessible::Focus, kTable);
  if (cell != kNoCell) Send(QAccessible::Focus, IndexOfCell(cell));
}

void* CMonthItem::interface_cast(QAccessible::InterfaceType type) {
  if (type == QAccessible::TableCellInterface) return static_cast<QAccessibleTableCellInterface*>(this);
  if (type == QAccessible::ActionInterface && !IsHeader())
    return static_cast<QAccessibleActionInterface*>(this);
  return nullptr;
}

QAccessibleInterface* CMonthItem::parent() const {
  return QAccessible::queryAccessibleInterface(m_table->object());
}

int CMonthItem::Cell() const { return m_table->Window().Places().firstCell + m_index; }

const DayCell& CMonthItem::Day() const { return CellIn(m_table->Window().Month(), Cell()); }

Rect CMonthItem::Place() const {
  const MonthLayout& places = m_table->Window().Places();
  if (IsWeek()) return places.WeekNumberRect(m_index - CMonthAccessible::kFirstWeek + 1);
  if (m_index == CMonthAccessible::kWeekHeader) return places.WeekHeaderRect();
  return IsHeader() ? places.NameRect(m_index - CMonthAccessible::kFirstName) : places.CellRect(Cell());
}

QRect CMonthItem::rect() const {
  return ToQRect(Place()).translated(m_table->Window().mapToGlobal(QPoint(0, 0)));
}

QAccessible::Role CMonthItem::role() const {
  if (IsWeek()) return QAccessible::RowHeader;
  // On purpose: in the role of a cell a day makes readers read the whole week and never say which day it is.
  return IsHeader() ? QAccessible::ColumnHeader : QAccessible::ListItem;
}

QAccessible::State CMonthItem::state() const {
  CMonthWindow& window = m_table->Window();
  QAccessible::State state;
  state.readOnly = true;
  state.invisible = !window.isVisible();
  if (IsHeader()) return state;
  if (Day().day == 0) {
    state.disabled = true;
    return state;
  }
  state.selectable = true;
  state.focusable = true;
  state.selected = window.IsSelected(Cell());
  state.active = Cell() == window.SelectedCell();
  state.focused = state.active && window.hasFocus();
  return state;
}

QString CMonthItem::text(QAccessible::Text kind) const {
  CMonthWindow& window = m_table->Window();
  if (kind == QAccessible::Name) {
    if (IsWeek()) return m_table->rowDescription(m_index - CMonthAccessible::kFirstWeek);
    if (m_index == CMonthAccessible::kWeekHeader) return TablePiece(kTextWeekOf, kWeekTitle);
    if (IsHeader()) return m_table->columnDescription(m_index - CMonthAccessible::kFirstName);
    const std::u16string day = SpokenDay(Day(), window.Today());
    if (!window.HasRange() || Cell() != window.SelectedCell()) return ToQString(day);
    return ToQString(day + u", " + window.RangeText());
  }
  // Only a day of another month is described: its press leads to that month.
  if (kind != QAccessible::Description || IsHeader() || Day().day == 0) return {};
  if (Day().month == window.Month().month) return {};
  return TablePiece(kTextHeaderNames, window.Places().IsInFirstRow(Cell()) ? kNamePrevious : kNameNext);
}

bool CMonthItem::isSelected() const { return !IsHeader() && m_table->Window().IsSelected(Cell()); }

QList<QAccessibleInterface*> CMonthItem::columnHeaderCells() const {
  if (IsHeader()) return {};
  return {m_table->Item(CMonthAccessible::kFirstName + columnIndex())};
}

QList<QAccessibleInterface*> CMonthItem::rowHeaderCells() const {
  CMonthItem* const header = IsHeader() ? nullptr : m_table->Item(CMonthAccessible::kFirstWeek + rowIndex());
  if (header == nullptr) return {};
  return {header};
}

QStringList CMonthItem::actionNames() const {
  if (IsHeader() || Day().day == 0) return {};
  return {pressAction(), setFocusAction()};
}

void CMonthItem::doAction(const QString& name) {
  if (!actionNames().contains(name)) return;
  if (name == setFocusAction()) m_table->Window().setFocus(Qt::OtherFocusReason);
  m_table->Window().SelectCell(Cell());
}

}  // namespace orbisol
