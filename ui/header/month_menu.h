// The menu of the twelve months. The month shown is checked and has the keyboard first; a first letter goes
// to the next month that begins with it, Home and End to January and December.
//
//   auto* const menu = new CMonthMenu(Selected().month, this);
//   connect(menu, &CMonthMenu::monthChosen, …);
//   menu->popup(point);  // it deletes itself when it closes
#pragma once

#include <QMenu>

namespace orbisol {

class CMonthMenu : public QMenu {
  Q_OBJECT

 public:
  // Makes the menu with `month`, 1..12, checked.
  CMonthMenu(int month, QWidget* parent);

 signals:
  void monthChosen(int month);

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  QAction* NextWith(QChar letter) const;
};

}  // namespace orbisol
