#include "ui/editors/editor_dialog.h"

#include <QAction>
#include <QDialogButtonBox>
#include <QEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QScreen>
#include <QToolButton>

#include <algorithm>
#include <utility>

#include "resources/strings.h"
#include "settings/display_settings.h"
#include "ui/editors/event_fields.h"
#include "ui/editors/row_list.h"
#include "ui/toolkit/messages.h"
#include "ui/toolkit/plain_text.h"
#include "ui/window/help.h"
#include "ui/window/tool_icons.h"

namespace orbisol {
namespace {

// An action with keys of its own, for the whole dialog.
void AddKeys(QDialog& dialog, QToolButton& button, const QList<QKeySequence>& keys) {
  auto* const action = new QAction(&dialog);
  action->setShortcuts(keys);
  QObject::connect(action, &QAction::triggered, &button, &QToolButton::click);
  dialog.addAction(action);
}

QString UndoTip(bool isRedo, const QString& step) {
  const int piece = (isRedo ? 1 : 0) + (step.isEmpty() ? 0 : 2);
  return TipMarkup(ToQString(FormatText(Piece(StringText(kTextUndoTips), u'|', piece), {Utf16View(step)})));
}

}  // namespace

CEditorDialog::CEditorDialog(const EditorServices& services, QWidget* parent)
    : QDialog(parent), m_services(services) {
  setWindowFlag(Qt::WindowContextHelpButtonHint, false);
  setSizeGripEnabled(true);
}

// What goes with the rows and the steps is no longer shown.
CEditorDialog::~CEditorDialog() {
  m_isQuiet = true;
  m_undo.disconnect(this);
}

void CEditorDialog::SetUp(const Controls& controls, std::unique_ptr<CRowsModel> rows) {
  m_controls = controls;
  m_rows = std::move(rows);
  m_view = std::make_unique<CRowsView>(*m_rows);
  CRowList& list = *controls.list;
  list.setModel(m_view.get());
  connect(list.selectionModel(), &QItemSelectionModel::selectionChanged, this, &CEditorDialog::OnSelection);
  connect(list.header(), &QHeaderView::sortIndicatorChanged, this, [this] { UpdateButtons(); });
  connect(&list, &CRowList::deletePressed, this, &CEditorDialog::OnRemove);
  connect(controls.filter, &QLineEdit::textChanged, this, &CEditorDialog::Filter);

  connect(controls.create, &QPushButton::clicked, this, [this] {
    m_controls.list->clearSelection();
    if (m_shownRow < 0) FocusFirstField();
  });
  connect(controls.remove, &QPushButton::clicked, this, &CEditorDialog::OnRemove);
  connect(controls.up, &QPushButton::clicked, this, [this] { OnMove(-1); });
  connect(controls.down, &QPushButton::clicked, this, [this] { OnMove(1); });
  connect(controls.undo, &QToolButton::clicked, this, &CEditorDialog::OnUndo);
  connect(controls.redo, &QToolButton::clicked, this, [this] { MakeStep([this] { m_undo.redo(); }); });
  controls.undo->setIcon(ToolIcon("undo"));
  controls.redo->setIcon(ToolIcon("redo"));
  AddKeys(*this, *controls.undo, {QKeySequence(Qt::CTRL | Qt::Key_Z)});
  AddKeys(*this, *controls.redo,
          {QKeySequence(Qt::CTRL | Qt::Key_Y), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z)});
  connect(controls.add, &QPushButton::clicked, this, &CEditorDialog::OnAdd);
  connect(controls.apply, &QPushButton::clicked, this, &CEditorDialog::OnApply);
  connect(controls.restore, &QPushButton::clicked, this, [this] { ShowRow(m_shownRow); });
  connect(&m_undo, &QUndoStack::indexChanged, this, &CEditorDialog::UpdateButtons);

  connect(controls.buttons, &QDialogButtonBox::accepted, this, [this] {
    if (Save()) accept();
  });
  connect(controls.buttons, &QDialogButtonBox::rejected, this, &CEditorDialog::reject);
  const int topic = controls.helpTopic;
  connect(controls.buttons, &QDialogButtonBox::helpRequested, this, [topic] { ShowHelp(topic); });
  AddHelpKey(*this, topic);
  for (QWidget* const field : findChildren<QWidget*>())
    if (qobject_cast<QLineEdit*>(field) != nullptr || field->findChild<QLineEdit*>() != nullptr)
      field->installEventFilter(this);
}

void CEditorDialog::RowsRead() {
  m_undo.clear();
  Filter();
  ShowRow(-1);
}

// A field keeps Ctrl+Z and Ctrl+Y for what was typed in it, and leaves them to the list where it has nothing
// to take back.
bool CEditorDialog::eventFilter(QObject* object, QEvent* event) {
  if (event->type() == QEvent::ShortcutOverride) {
    const auto* const key = static_cast<QKeyEvent*>(event);
    auto* edit = qobject_cast<QLineEdit*>(object);
    if (edit == nullptr) edit = object->findChild<QLineEdit*>();
    const bool isRedo =
        key->matches(QKeySequence::Redo) || key->keyCombination() == QKeyCombination(Qt::CTRL, Qt::Key_Y);
    const bool isIdle = edit != nullptr && ((key->matches(QKeySequence::Undo) && !edit->isUndoAvailable()) ||
                                            (isRedo && !edit->isRedoAvailable()));
    if (isIdle) {
      event->ignore();
      return true;
    }
  }
  return QDialog::eventFilter(object, event);
}

void CEditorDialog::Filter() {
  m_view->SetFilter({Folded(Utf16View(m_controls.filter->text().trimmed())), ShownKind()});
  m_controls.list->SetEmptyText(TablePiece(m_controls.emptyTexts, m_view->IsFiltered() ? 1 : 0));
  UpdateButtons();
}

void CEditorDialog::SelectRow(int row) {
  const QModelIndex index = row < 0 ? QModelIndex() : m_view->mapFromSource(m_rows->index(row, 0));
  CRowList& list = *m_controls.list;
  if (index.isValid()) {
    list.SelectOnly(index);
  } else {
    list.clearSelection();
  }
}

void CEditorDialog::LayOut(std::initializer_list<int> shares, std::initializer_list<QWidget*> fields,
                           std::initializer_list<QLabel*> texts) {
  constexpr int kCharactersAShare = 8;
  constexpr int kCharactersOfField = 38;
  constexpr int kShownRows = 14;
  ensurePolished();
  const int character = fontMetrics().averageCharWidth();
  const int width = kCharactersOfField * character;
  for (QWidget* const field : fields) field->setMinimumWidth(width);
  // The longest of the texts fits, so that nothing moves when another one is shown.
  for (QLabel* const text : texts) {
    const QRect room(0, 0, width, QWIDGETSIZE_MAX);
    text->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    text->setMinimumHeight(fontMetrics().boundingRect(room, Qt::TextWordWrap, text->text()).height());
  }

  CRowList& list = *m_controls.list;
  QHeaderView& header = *list.header();
  int listWidth = 0;
  int section = 0;
  for (const int count : shares) {
    header.resizeSection(section++, count * kCharactersAShare * character);
    listWidth += count * kCharactersAShare * character;
  }
  header.setStretchLastSection(true);
  const int row = fontMetrics().height() * 3 / 2;
  list.setMinimumSize(listWidth + 2 * row, kShownRows * row);
  const QSize wanted = sizeHint();
  list.setMinimumSize(listWidth / 2, kShownRows / 2 * row);
  resize(wanted.boundedTo(screen()->availableSize() * 9 / 10));
}

void CEditorDialog::ShowRow(int row) {
  m_shownRow = row;
  m_controls.title->setText(TablePiece(m_controls.formTexts, row < 0 ? 0 : 1));
  ShowFields(row);
  UpdateButtons();
}

void CEditorDialog::FormEdited() { UpdateButtons(); }

// Changes rows or the selection without that the form follows.
void CEditorDialog::Quietly(const std::function<void()>& change) {
  const QScopedValueRollback<bool> quiet(m_isQuiet, true);
  change();
}

bool CEditorDialog::TakeForm() {
  if (!IsFormGood()) return false;
  Quietly([this] { TakeFields(m_shownRow); });
  return true;
}

void CEditorDialog::OnSelection() {
  if (m_isQuiet) return;
  const QModelIndexList selected = m_controls.list->SelectedRows();
  const int row = selected.size() == 1 ? m_view->mapToSource(selected.first()).row() : -1;
  if (row == m_shownRow) {
    UpdateButtons();
    return;
  }
  // A new entry waits for the user to come back to it, unless a date in it would be forgotten.
  const bool isLeft = m_shownRow < 0 ? IsFormRead() || IsFormGood() : !IsFormEdited() || TakeForm();
  if (!isLeft) {
    Messages().Beep();
    Quietly([this] { SelectRow(m_shownRow); });
    return;
  }
  ShowRow(row);
}

void CEditorDialog::MakeStep(const std::function<void()>& step) {
  int row = -1;
  Quietly([&] {
    step();
    row = m_rows->TouchedRow();
    SelectRow(row);
  });
  ShowRow(m_controls.list->SelectedRows().isEmpty() ? -1 : row);
}

// First takes back what the form was changed to.
void CEditorDialog::OnUndo() {
  if (m_shownRow >= 0 && IsFormEdited()) {
    ShowRow(m_shownRow);
  } else {
    MakeStep([this] { m_undo.undo(); });
  }
}

void CEditorDialog::OnAdd() {
  if (!TakeForm()) return;
  const int added = m_rows->rowCount({}) - 1;
  if (!m_view->mapFromSource(m_rows->index(added, 0)).isValid()) m_controls.filter->clear();
  m_controls.list->scrollTo(m_view->mapFromSource(m_rows->index(added, 0)));
  FocusFirstField();
  UpdateButtons();
}

void CEditorDialog::OnApply() {
  if (!TakeForm()) return;
  ShowRow(m_shownRow);
  m_controls.list->setFocus();
}

void CEditorDialog::OnRemove() {
  std::vector<int> rows;
  for (const QModelIndex& index : m_controls.list->SelectedRows())
    rows.push_back(m_view->mapToSource(index).row());
  std::sort(rows.begin(), rows.end());
  if (rows.empty()) return;
  const int place = m_controls.list->SelectedRows().first().row();
  int next = -1;
  Quietly([&] {
    m_rows->Delete(rows);
    m_controls.list->clearSelection();
    next = std::min(place, m_view->rowCount() - 1);
    if (next >= 0) m_controls.list->SelectOnly(m_view->index(next, 0));
  });
  ShowRow(next < 0 ? -1 : m_view->mapToSource(m_view->index(next, 0)).row());
  m_controls.list->setFocus();
}

void CEditorDialog::OnMove(int by) {
  if (m_shownRow < 0 || (IsFormEdited() && !TakeForm())) return;
  MakeStep([&] { m_rows->Move(m_shownRow, by); });
}

// Takes over what the form holds, and a new entry that waits. Where one is refused its form is shown.
bool CEditorDialog::TakeAll() {
  if (m_shownRow >= 0) {
    if (IsFormEdited() && !TakeForm()) return false;
    if (!IsEntryWanted()) return true;
    Quietly([this] { SelectRow(-1); });
    ShowRow(-1);
  }
  return !IsEntryWanted() || TakeForm();
}

bool CEditorDialog::KeepUnsaved() {
  if (!HasChanges()) return true;
  const std::u16string refused = TakeAll() ? std::u16string() : TypedText();
  CalendarContent content = EditedContent();
  if (!IsBlank(refused)) {
    DayEvent note;  // marks no day: it is valid in no year
    note.month = note.day = 1;
    note.name.Set(Tidied(refused));
    content.dayEvents.push_back(note);
  }
  if (m_undo.isClean() && IsBlank(refused)) return true;
  const KeptEnd end = SaveUnasked(m_services.places, Display(), Rules(), content);
  if (end == KeptEnd::kSaved) {
    Content() = content;
    m_undo.setClean();
  }
  return end != KeptEnd::kNowhere;
}

bool CEditorDialog::Save() {
  if (!TakeAll()) return false;
  const CalendarContent content = EditedContent();
  SavedFromWindow saved = SaveCalendarFromWindow(this, m_services.places, Display(), Rules(), content);
  if (saved.end == SaveEnd::kSaved) {
    Content() = content;
    return true;
  }
  if (saved.end == SaveEnd::kReloaded) {
    PutInForce(std::move(*saved.reloaded));
    ReadContent(Content());
    RowsRead();
  }
  return false;
}

void CEditorDialog::reject() {
  if (HasChanges()) {
    enum { kQuestion, kSave, kDiscard };
    const int answer = Messages().Choose(
        this, TablePiece(kTextUnsavedChanges, kQuestion),
        {TablePiece(kTextUnsavedChanges, kSave), TablePiece(kTextUnsavedChanges, kDiscard)});
    if (answer < 0) return;
    if (answer == 0) {
      if (Save()) accept();
      return;
    }
  }
  QDialog::reject();
}

void CEditorDialog::UpdateButtons() {
  if (m_rows == nullptr) return;
  const Controls& c = m_controls;
  const bool isNew = m_shownRow < 0;
  const bool isEdited = IsFormEdited();
  const auto selected = c.list->SelectedRows().size();
  const bool isStored = !m_view->IsFiltered() && c.list->header()->sortIndicatorSection() < 0;
  c.add->setVisible(isNew);
  c.apply->setVisible(!isNew);
  c.restore->setVisible(!isNew);
  c.apply->setEnabled(isEdited);
  c.restore->setEnabled(isEdited);
  c.create->setEnabled(selected > 0);
  c.remove->setEnabled(selected > 0);
  c.up->setEnabled(isStored && m_shownRow > 0);
  c.down->setEnabled(isStored && !isNew && m_shownRow + 1 < m_rows->rowCount({}));
  const QString moveTip = TipMarkup(TablePiece(kTextMoveTips, isStored ? 1 : 0));
  c.up->setToolTip(moveTip);
  c.down->setToolTip(moveTip);
  c.undo->setEnabled(m_undo.canUndo() || (!isNew && isEdited));
  c.redo->setEnabled(m_undo.canRedo() && (isNew || !isEdited));
  c.undo->setToolTip(UndoTip(false, m_undo.undoText()));
  c.redo->setToolTip(UndoTip(true, m_undo.redoText()));
  // Enter first takes over what the form holds, then saves.
  QPushButton* const save = c.buttons->button(QDialogButtonBox::Save);
  if (isNew) {
    (IsEntryWanted() ? c.add : save)->setDefault(true);
  } else {
    (isEdited ? c.apply : save)->setDefault(true);
  }
}

}  // namespace orbisol
