#include "ui/calendars/choose_calendar_dlg.h"

#include <QDir>
#include <QFileDialog>
#include <QKeyEvent>
#include <QPushButton>
#include <QStandardPaths>

#include <algorithm>

#include "resources/help/help_pages.h"
#include "resources/strings.h"
#include "ui/calendars/name_check.h"
#include "ui/calendars/rename_calendar_dlg.h"
#include "ui/calendars/versions_dlg.h"
#include "ui/toolkit/french_order.h"
#include "ui/toolkit/messages.h"
#include "ui/toolkit/plain_text.h"
#include "ui/window/help.h"
#include "ui_choose_calendar.h"

namespace orbisol {
namespace {

constexpr int kListRows = 10;
constexpr int kListChars = 44;

// Pieces of kTextChooseCalendar.
enum ChooseText { kInUse, kInUseStays };

}  // namespace

CChooseCalendarDlg::CChooseCalendarDlg(const SavePlaces& places, CalendarTask task, QWidget* parent)
    : QDialog(parent),
      m_actions(places, {Display(), Rules(), Content()}, this),
      m_form(new Ui::ChooseCalendar),
      m_newName(nullptr) {
  m_form->setupUi(this);
  m_newName = new CNameCheck(*m_form->name, *m_form->fault);
  const QFontMetrics metrics = fontMetrics();
  m_form->calendars->setMinimumSize(metrics.averageCharWidth() * kListChars,
                                    metrics.lineSpacing() * (kListRows + 1));
  m_form->calendars->installEventFilter(this);
  m_form->buttons->button(QDialogButtonBox::Open)->setDefault(true);
  AddHelpKey(*this, kHelpCalendars);
  connect(m_form->buttons, &QDialogButtonBox::helpRequested, this, [] { ShowHelp(kHelpCalendars); });
  connect(m_form->calendars, &QListWidget::itemSelectionChanged, this, &CChooseCalendarDlg::UpdateControls);
  connect(m_form->calendars, &QListWidget::itemDoubleClicked, this, &CChooseCalendarDlg::OpenSelected);
  connect(m_form->isNew, &QCheckBox::toggled, this, &CChooseCalendarDlg::OnNewToggled);
  connect(m_form->remove, &QPushButton::clicked, this, &CChooseCalendarDlg::OnDelete);
  connect(m_form->rename, &QPushButton::clicked, this, &CChooseCalendarDlg::OnRename);
  connect(m_form->exportCopy, &QPushButton::clicked, this, &CChooseCalendarDlg::OnExport);
  connect(m_form->versions, &QPushButton::clicked, this, &CChooseCalendarDlg::OnVersions);
  Fill(m_actions.CurrentName());
  OnNewToggled(false);
  m_form->calendars->setFocus();
  m_form->isNew->setChecked(task == CalendarTask::kCreate);
}

CChooseCalendarDlg::~CChooseCalendarDlg() = default;

std::u16string CChooseCalendarDlg::Selected() const {
  const QList<QListWidgetItem*> selected = m_form->calendars->selectedItems();
  return selected.isEmpty() ? std::u16string() : std::u16string(Utf16View(selected.first()->text()));
}

void CChooseCalendarDlg::Fill(std::u16string_view selected) {
  const std::vector<std::u16string> known = m_actions.Names();
  m_newName->SetTaken(known);
  QStringList names;
  for (const std::u16string& name : known) names.append(ToQString(name));
  std::sort(names.begin(), names.end(), CFrenchOrder());
  QListWidget& list = *m_form->calendars;
  list.clear();
  for (const QString& name : names) {
    auto* const item = new QListWidgetItem(name, &list);
    if (m_actions.IsCurrent(Utf16View(name))) {
      QFont bold = item->font();
      bold.setBold(true);
      item->setFont(bold);
      item->setToolTip(TablePiece(kTextChooseCalendar, kInUse));
      item->setData(Qt::AccessibleDescriptionRole, TablePiece(kTextChooseCalendar, kInUse));
    }
    if (Utf16View(name) == selected) list.setCurrentItem(item);
  }
  UpdateControls();
}

void CChooseCalendarDlg::UpdateControls() {
  const std::u16string selected = Selected();
  const bool isCurrent = m_actions.IsCurrent(selected);
  for (QPushButton* const button : {m_form->rename, m_form->exportCopy, m_form->versions})
    button->setEnabled(!selected.empty());
  m_form->remove->setEnabled(!isCurrent);
  m_form->remove->setToolTip(isCurrent ? TablePiece(kTextChooseCalendar, kInUseStays) : QString());
}

void CChooseCalendarDlg::OnNewToggled(bool isNew) {
  m_form->name->setEnabled(isNew);
  m_form->keepsEvents->setEnabled(isNew);
  m_newName->Clear();
  if (isNew) m_form->name->setFocus(Qt::OtherFocusReason);
}

// Tells of a change in force, and shows the calendars anew.
void CChooseCalendarDlg::Finish(bool isDone) {
  const std::u16string selected = Selected();
  if (m_actions.HasChangedLive()) emit calendarChanged();
  if (isDone)
    QDialog::accept();
  else
    Fill(selected);
}

void CChooseCalendarDlg::accept() {
  if (m_form->isNew->isChecked()) {
    if (!m_newName->Accepts()) {
      Messages().Beep();
      return;
    }
    Finish(m_actions.Create(m_newName->Name(), m_form->keepsEvents->isChecked()));
  } else if (Selected().empty()) {
    Messages().Beep();
  } else {
    OpenSelected();
  }
}

void CChooseCalendarDlg::OpenSelected() { Finish(m_actions.Open(Selected())); }

void CChooseCalendarDlg::OnDelete() {
  const int row = m_form->calendars->currentRow();
  if (Selected().empty()) {
    Messages().Beep();
  } else if (m_actions.Delete(Selected())) {
    Fill({});
    m_form->calendars->setCurrentRow(std::min(row, m_form->calendars->count() - 1));
    m_form->calendars->setFocus();
  }
}

void CChooseCalendarDlg::OnRename() {
  const std::u16string name = Selected();
  std::vector<std::u16string> others = m_actions.Names();
  std::erase(others, name);
  CRenameCalendarDlg dialog(name, others, this);
  if (dialog.exec() != QDialog::Accepted || dialog.Name() == name) return;
  const bool isRenamed = m_actions.Rename(name, dialog.Name());
  if (m_actions.HasChangedLive()) emit calendarChanged();
  Fill(isRenamed ? dialog.Name() : name);
}

void CChooseCalendarDlg::OnExport() {
  const std::u16string name = Selected();
  const QDir documents(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
  const QString path = QFileDialog::getSaveFileName(
      this, TablePiece(kTextExportCopy, 0), documents.filePath(ToQString(name) + QStringLiteral(".xml")),
      TablePiece(kTextExportCopy, 1));
  if (!path.isEmpty()) m_actions.Export(name, Utf16View(path));
}

void CChooseCalendarDlg::OnVersions() {
  CVersionsDlg dialog(m_actions, Selected(), this);
  connect(&dialog, &CVersionsDlg::restored, this, [this] {
    if (m_actions.HasChangedLive()) emit calendarChanged();
  });
  dialog.exec();
  Fill(dialog.Name());
}

bool CChooseCalendarDlg::eventFilter(QObject* watched, QEvent* event) {
  if (watched == m_form->calendars && event->type() == QEvent::KeyPress) {
    switch (static_cast<QKeyEvent*>(event)->key()) {
      case Qt::Key_Delete:
        OnDelete();
        return true;
      case Qt::Key_F2:
        if (!Selected().empty()) OnRename();
        return true;
      default:
        break;
    }
  }
  return QDialog::eventFilter(watched, event);
}

}  // namespace orbisol
