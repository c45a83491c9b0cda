#include "ui/header/month_menu.h"

#include <QActionGroup>
#include <QKeyEvent>

#include <algorithm>

#include "core/date_text.h"
#include "core/text.h"
#include "resources/command_ids.h"
#include "ui/toolkit/plain_text.h"

namespace orbisol {

CMonthMenu::CMonthMenu(int month, QWidget* parent) : QMenu(parent) {
  setAttribute(Qt::WA_DeleteOnClose);
  auto* const group = new QActionGroup(this);
  for (int number = 1; number <= 12; ++number) {
    QAction* const item = addAction(MenuText(UpperFirst(MonthName(number))));
    item->setData(kCmdFirstMonth + number - 1);
    item->setCheckable(true);
    item->setChecked(number == month);
    group->addAction(item);
    connect(item, &QAction::triggered, this, [this, number] { emit monthChosen(number); });
    if (number == month) setActiveAction(item);
  }
}

// Returns the next month after the active one that begins with a letter, or else the active one itself;
// nullptr for a letter that begins none.
QAction* CMonthMenu::NextWith(QChar letter) const {
  const QList<QAction*> months = actions();
  const qsizetype active = months.indexOf(activeAction());
  for (qsizetype step = 1; step <= months.size(); ++step) {
    QAction* const month = months[(active + step) % months.size()];
    if (month->text().startsWith(letter, Qt::CaseInsensitive)) return month;
  }
  return nullptr;
}

void CMonthMenu::keyPressEvent(QKeyEvent* event) {
  QAction* month = nullptr;
  if (event->key() == Qt::Key_Home) {
    month = actions().first();
  } else if (event->key() == Qt::Key_End) {
    month = actions().last();
  } else if (event->text().size() == 1 && event->text().front().isLetter()) {
    month = NextWith(event->text().front());
  }
  if (month != nullptr) {
    setActiveAction(month);
  } else {
    QMenu::keyPressEvent(event);
  }
}

}  // namespace orbisol
