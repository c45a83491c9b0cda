#include "ui/toolkit/messages.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>

#include "resources/strings.h"
#include "ui/toolkit/plain_text.h"

namespace orbisol {
namespace {

struct DesktopMessages : UserMessages {
  void ShowError(QWidget* parent, const QString& text) override {
    QMessageBox box(QMessageBox::Critical, TableText(kTextProgramName), text, QMessageBox::Ok, parent);
    box.setTextFormat(Qt::PlainText);
    box.exec();
  }

  int Choose(QWidget* parent, const QString& text, const QStringList& buttons) override {
    QMessageBox box(QMessageBox::Question, TableText(kTextProgramName), text, QMessageBox::NoButton, parent);
    box.setTextFormat(Qt::PlainText);
    QList<QAbstractButton*> made;
    for (const QString& button : buttons) made.append(box.addButton(button, QMessageBox::ActionRole));
    if (!made.isEmpty()) box.setDefaultButton(static_cast<QPushButton*>(made.first()));
    // No button of the list means "leave it": Escape and the close button of the box do.
    QPushButton* const cancel = box.addButton(QMessageBox::Cancel);
    box.setEscapeButton(cancel);
    box.exec();
    return static_cast<int>(made.indexOf(box.clickedButton()));
  }

  void Beep() override { QApplication::beep(); }
};

UserMessages*& InForce() {
  static DesktopMessages desktop;
  static UserMessages* inForce = &desktop;
  return inForce;
}

}  // namespace

UserMessages& Messages() { return *InForce(); }

ScopedMessages::ScopedMessages(UserMessages& messages) : m_saved(InForce()) { InForce() = &messages; }

ScopedMessages::~ScopedMessages() { InForce() = m_saved; }

}  // namespace orbisol
