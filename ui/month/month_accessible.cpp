#include "ui/month/month_accessible.h"

#include <utility>

#include "content/selected_date.h"
#include "core/civil_year.h"
#include "core/date_text.h"
#include "resources/strings.h"
#include "settings/display_settings.h"
#include "ui/common/geometry.h"
#include "ui/common/plain_text.h"
#include "ui/month/month_fonts.h"
#include "ui/month/tip_text.h"

namespace orbisol {
namespace {

constexpr int kTextWeek = 295;  // "s."

// Pieces of kTextHeaderNames, by which the arrows of the header are called too.
constexpr int kNamePrevious = 1;
constexpr int kNameNext = 2;

const DayCell& CellIn(const MonthModel& month, int cell) {
  return month.cells[static_cast<std::size_t>(cell)];
}

void (*g_listener)(QAccessibleEvent*) = nullptr;

void Emit(QAccessibleEvent& event) {
  if (g_listener != nullptr) {
    g_listener(&event);
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

void TellReader(CMonthWindow& window, MonthNews news) {
  if (g_listener == nullptr && !QAccessible::isActive()) return;
  if (auto* const table = dynamic_cast<CMonthAccessible*>(QAccessible::queryAccessibleInterface(&window)))
    table->Tell(news);
}

void SetReader(void (*listener)(QAccessibleEvent* event)) { g_listener = listener; }

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
  return ToQString(UpperFirst(MonthName(selected.month))) + QLatin1Char(' ') +
         QString::number(CivilYearOf(selected));
}

QAccessible::State CMonthAccessible::state() const {
  QAccessible::State state = QAccessibleWidget::state();
  state.extSelectable = true;
  return state;
}

int CMonthAccessible::ShownColumns() const {
  return Window().Places().showWeekNumber ? kAllColumns : kColumns;
}

int CMonthAccessible::IndexOfCell(int cell) const {
  const MonthLayout& places = Window().Places();
  return IndexOf(places.RowOf(cell), places.ColumnOf(cell));
}

CMonthItem* CMonthAccessible::Item(int row, int column) const {
  if (row < 0 || row >= kAllRows || column < 0 || column >= ShownColumns()) return nullptr;
  QAccessible::Id& id = m_ids[static_cast<std::size_t>(row) * kAllColumns + static_cast<std::size_t>(column)];
  if (id == 0) id = QAccessible::registerAccessibleInterface(new CMonthItem(this, row, column));
  return static_cast<CMonthItem*>(QAccessible::accessibleInterface(id));
}

CMonthItem* CMonthAccessible::ItemOfCell(int cell) const {
  const MonthLayout& places = Window().Places();
  return cell == kNoCell ? nullptr : Item(places.RowOf(cell), places.ColumnOf(cell));
}

int CMonthAccessible::childCount() const { return kAllRows * ShownColumns(); }

QAccessibleInterface* CMonthAccessible::child(int index) const {
  if (index < 0) return nullptr;
  return Item(index / ShownColumns(), index % ShownColumns());
}

int CMonthAccessible::indexOfChild(const QAccessibleInterface* child) const {
  const auto* const item = dynamic_cast<const CMonthItem*>(child);
  if (item == nullptr || item->parent() != this || item->Column() >= ShownColumns()) return -1;
  return IndexOf(item->Row(), item->Column());
}

QAccessibleInterface* CMonthAccessible::childAt(int x, int y) const {
  const QPoint position = Window().mapFromGlobal(QPoint(x, y));
  const MonthLayout& places = Window().Places();
  const int cell = places.CellAt(position.x(), position.y());
  if (cell != kNoCell) return ItemOfCell(cell);
  for (int row = 0; row < kAllRows; ++row)
    for (int column = row == 0 ? 0 : kColumns; column < ShownColumns(); ++column)
      if (CMonthItem* const header = Item(row, column); header->rect().contains(x, y)) return header;
  return nullptr;
}

QAccessibleInterface* CMonthAccessible::focusChild() const {
  if (!Window().hasFocus()) return nullptr;
  return ItemOfCell(Window().SelectedCell());
}

QAccessibleInterface* CMonthAccessible::cellAt(int row, int column) const {
  return column >= kColumns || row < 0 ? nullptr : Item(row + 1, column);
}

QString CMonthAccessible::columnDescription(int column) const {
  return column < 0 || column >= kColumns ? QString() : ColumnName(Window().Places(), column);
}

QString CMonthAccessible::rowDescription(int row) const {
  const MonthLayout& places = Window().Places();
  if (row < 0 || row >= kWeekRows || !places.showWeekNumber) return {};
  const int week = places.WeekOfRow(Window().Month(), row + 1);
  return week == 0 ? QString() : QString::number(week);
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
  event.setChild(index);  // -1: the table
  Emit(event);
}

void CMonthAccessible::Tell(MonthNews news) {
  constexpr int kTable = -1;
  CMonthWindow& window = Window();
  const Date& selected = Selected();
  const PackedDate month = Pack(selected.year, selected.month, 1);
  const bool isOtherMonth = month != std::exchange(m_toldMonth, month);
  const int columns = ShownColumns();

  if (columns != std::exchange(m_toldColumns, columns)) {
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
    // Readers keep the names that they have asked for until they hear of others.
    Send(QAccessible::NameChanged, kTable);
    for (int row = 0; row < kAllRows; ++row)
      for (int column = 0; column < columns; ++column)
        if (m_ids[static_cast<std::size_t>(row) * kAllColumns + static_cast<std::size_t>(column)] != 0)
          Send(QAccessible::NameChanged, IndexOf(row, column));
  }

  const MonthLayout& places = window.Places();
  for (int cell = places.firstCell; cell < places.firstCell + kToolCount; ++cell) {
    const auto bit = static_cast<std::size_t>(cell);
    const bool isSelected = window.IsSelected(cell);
    if (isSelected == m_toldSelected[bit]) continue;
    m_toldSelected[bit] = isSelected;
    Send(isSelected ? QAccessible::SelectionAdd : QAccessible::SelectionRemove, IndexOfCell(cell));
  }

  const int cell = window.SelectedCell();
  const bool isOtherCell = cell != std::exchange(m_toldCell, cell);
  if (!window.hasFocus() || !(isOtherCell || isOtherMonth || news == MonthNews::kFocus)) return;
  // A reader is silent about the place that it stands on already, though it shows another day now. Over the
  // table, which says the new month, it comes to it anew.
  if (isOtherMonth || cell == kNoCell) Send(QAccessible::Focus, kTable);
  if (cell != kNoCell) Send(QAccessible::Focus, IndexOfCell(cell));
}

CMonthItem::CMonthItem(const CMonthAccessible* table, int row, int column)
    : m_table(table), m_row(row), m_column(column) {}

void* CMonthItem::interface_cast(QAccessible::InterfaceType type) {
  if (type == QAccessible::TableCellInterface) return static_cast<QAccessibleTableCellInterface*>(this);
  if (type == QAccessible::ActionInterface && !IsHeader())
    return static_cast<QAccessibleActionInterface*>(this);
  return nullptr;
}

QAccessibleInterface* CMonthItem::parent() const {
  return QAccessible::queryAccessibleInterface(m_table->object());
}

int CMonthItem::Cell() const {
  return m_table->Window().Places().firstCell + (m_row - 1) * kColumns + m_column;
}

const DayCell& CMonthItem::Day() const { return CellIn(m_table->Window().Month(), Cell()); }

QRect CMonthItem::rect() const {
  const CMonthWindow& window = m_table->Window();
  const MonthLayout& places = window.Places();
  const Rect rect = m_row == 0 ? m_column == kColumns ? places.WeekHeaderRect() : places.NameRect(m_column)
                    : m_column == kColumns ? places.WeekNumberRect(m_row)
                                           : places.CellRect(Cell());
  return ToQRect(rect).translated(window.mapToGlobal(QPoint(0, 0)));
}

QAccessible::Role CMonthItem::role() const {
  if (m_row == 0) return QAccessible::ColumnHeader;
  return m_column == kColumns ? QAccessible::RowHeader : QAccessible::Cell;
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
    if (m_row == 0) return m_column == kColumns ? TableText(kTextWeek) : m_table->columnDescription(m_column);
    if (m_column == kColumns) return m_table->rowDescription(m_row - 1);
    return ToQString(TipText(Day(), false)).replace(QLatin1Char('\n'), QLatin1String(", "));
  }
  // Grey days: what is pressed there leads to another month.
  if (kind != QAccessible::Description || IsHeader() || Day().day == 0) return {};
  if (Day().month == window.Month().month) return {};
  return TablePiece(kTextHeaderNames, window.Places().IsInFirstRow(Cell()) ? kNamePrevious : kNameNext);
}

bool CMonthItem::isSelected() const { return !IsHeader() && m_table->Window().IsSelected(Cell()); }

QList<QAccessibleInterface*> CMonthItem::columnHeaderCells() const {
  if (m_row == 0) return {};
  return {m_table->Item(0, m_column)};
}

QList<QAccessibleInterface*> CMonthItem::rowHeaderCells() const {
  CMonthItem* const header = m_row == 0 || m_column == kColumns ? nullptr : m_table->Item(m_row, kColumns);
  if (header == nullptr) return {};
  return {header};
}

QStringList CMonthItem::actionNames() const {
  if (IsHeader() || Day().day == 0) return {};
  return {pressAction()};
}

void CMonthItem::doAction(const QString& name) {
  if (name == pressAction() && !IsHeader()) m_table->Window().SelectCell(Cell());
}

}  // namespace orbisol
