#include "ui/find/go_to_date_dialog.h"

#include <QAccessible>
#include <QApplication>
#include <QKeyEvent>
#include <QPushButton>

#include "resources/help/help_pages.h"
#include "resources/strings.h"
#include "ui/toolkit/plain_text.h"
#include "ui/window/help.h"
#include "ui_go_to_date.h"

namespace orbisol {
namespace {

constexpr int kDateRole = Qt::UserRole;
constexpr int kLinesShown = 5;
constexpr int kLettersWide = 62;

enum GoToDateText { kReading, kReadings, kOffers };

// The day, and how the text led to it where that does not go without saying.
QString LineOf(const DateReading& reading) {
  const QString text = ToQString(ReadingText(reading));
  const QString note = ToQString(ReadingNote(reading));
  return note.isEmpty() ? text : TableText(kTextReadingLine, {Utf16View(text), Utf16View(note)});
}

}  // namespace

CGoToDateDialog::CGoToDateDialog(QWidget* parent, PackedDate selected)
    : QDialog(parent), m_form(std::make_unique<Ui::GoToDateDialog>()), m_selected(selected) {
  m_form->setupUi(this);
  const QFontMetrics metrics = fontMetrics();
  m_form->readings->setMinimumSize(metrics.averageCharWidth() * kLettersWide, metrics.height() * kLinesShown);
  m_form->message->setMinimumHeight(metrics.height() * 2);
  m_form->message->setAlignment(Qt::AlignTop | Qt::AlignLeading);
  m_form->text->setMaxLength(static_cast<int>(kMostTypedUnits));
  m_form->text->installEventFilter(this);
  connect(m_form->text, &QLineEdit::textChanged, this, &CGoToDateDialog::Read);
  connect(m_form->readings, &QListWidget::itemSelectionChanged, this, &CGoToDateDialog::FollowMark);
  connect(m_form->readings, &QListWidget::itemActivated, this, &QDialog::accept);
  connect(m_form->buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(m_form->buttons, &QDialogButtonBox::helpRequested, this, [] { ShowHelp(kHelpGoToDate); });
  AddHelpKey(*this, kHelpGoToDate);
  Read({});
  m_form->text->setFocus();
}

CGoToDateDialog::~CGoToDateDialog() = default;

PackedDate CGoToDateDialog::Date() const {
  const QList<QListWidgetItem*> marked = m_form->readings->selectedItems();
  return marked.isEmpty() ? 0 : marked.first()->data(kDateRole).toInt();
}

void CGoToDateDialog::Read(const QString& text) {
  const DateReadings read = ReadDates(Utf16View(text), m_selected);
  m_isRefused = read.readings.empty();
  ShowDates(m_isRefused ? read.offers : read.readings, !m_isRefused);
  if (read.refusal == DateRefusal::kEmpty) {
    Say({});
  } else if (!m_isRefused) {
    Say(read.readings.size() == 1 ? TablePiece(kTextGoToDate, kReading)
                                  : TablePiece(kTextGoToDate, kReadings));
  } else {
    const QString reason = ToQString(read.reason);
    Say(read.offers.empty() ? reason : reason + u' ' + TablePiece(kTextGoToDate, kOffers));
  }
}

// Shows a message, and has a screen reader say it with the line that Enter would take.
void CGoToDateDialog::Say(const QString& message) {
  m_form->message->setText(message);
  QString spoken = message;
  for (int row = 0; row < m_form->readings->count(); ++row)
    spoken += u'\n' + m_form->readings->item(row)->text();
  if (m_form->text->accessibleDescription() == spoken) return;
  m_form->text->setAccessibleDescription(spoken);
  QAccessibleEvent event(m_form->text, QAccessible::DescriptionChanged);
  QAccessible::updateAccessibility(&event);
}

void CGoToDateDialog::ShowDates(const std::vector<DateReading>& readings, bool marksFirst) {
  m_form->readings->clear();
  for (const DateReading& reading : readings) {
    auto* const item = new QListWidgetItem(LineOf(reading), m_form->readings);
    item->setData(kDateRole, reading.date);
  }
  if (marksFirst) m_form->readings->setCurrentRow(0);
  FollowMark();
}

void CGoToDateDialog::FollowMark() { m_form->buttons->button(QDialogButtonBox::Ok)->setEnabled(Date() != 0); }

// The arrows move through the list without leaving the field.
bool CGoToDateDialog::eventFilter(QObject* watched, QEvent* event) {
  if (watched == m_form->text && event->type() == QEvent::KeyPress) {
    const auto* const key = static_cast<QKeyEvent*>(event);
    const bool isStep = key->key() == Qt::Key_Up || key->key() == Qt::Key_Down;
    if (isStep && m_form->readings->count() > 0) {
      QApplication::sendEvent(m_form->readings, event);
      if (m_form->readings->selectedItems().isEmpty()) m_form->readings->setCurrentRow(0);
      return true;
    }
  }
  return QDialog::eventFilter(watched, event);
}

}  // namespace orbisol
