// One line of plain text that takes the room it is given and is cut at its end, with an ellipsis, where it is
// longer.
#pragma once

#include <QWidget>

namespace orbisol {

class CElidedLabel : public QWidget {
 public:
  explicit CElidedLabel(QWidget* parent = nullptr);

  void SetText(const QString& text);
  const QString& Text() const { return m_text; }

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QString m_text;
};

}  // namespace orbisol
