// A field whose text can be read, selected and copied, but not changed. A click selects it whole, so that the
// usual keys copy it; where nothing is selected these keys belong to the menu.
//
//   CReadOnlyField field;
//   field.ShowText(text);
//   connect(&field, &CReadOnlyField::visited, …);
#pragma once

#include <QLineEdit>

namespace orbisol {

class CReadOnlyField : public QLineEdit {
  Q_OBJECT

 public:
  explicit CReadOnlyField(QWidget* parent = nullptr);

  // Shows `text`; the selection stays where that changes nothing.
  void ShowText(const QString& text);

 signals:
  // Tells that the user went to the field with the mouse or a key. Focus given back by a menu, an editor or a
  // window that closes is no visit.
  void visited();

 protected:
  bool event(QEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
};

}  // namespace orbisol
