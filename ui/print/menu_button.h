// A button of a tool bar that opens a menu and shows what is chosen in it, with an arrow behind the text.
//
//   auto* const button = new CMenuButton(periodMenu, "Période");
//   bar.addWidget(button);
//   button->Show("2e trimestre");  // readers say "Période : 2e trimestre"
#pragma once

#include <QToolButton>

namespace orbisol {

class CMenuButton : public QToolButton {
  Q_OBJECT

 public:
  // `menu` outlives the button.
  CMenuButton(QMenu* menu, const QString& name, QWidget* parent = nullptr);

  void Show(const QString& choice);

  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  int ArrowWidth() const;

  QString m_name;
};

}  // namespace orbisol
