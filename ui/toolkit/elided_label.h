// One line of plain text that takes the room it is given. Where it is longer it is cut at its end, with an
// ellipsis, and its tip says it whole.
#pragma once

#include <QLabel>

namespace orbisol {

class CElidedLabel : public QLabel {
 public:
  explicit CElidedLabel(QWidget* parent = nullptr);

  QSize minimumSizeHint() const override;

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  bool IsCut() const;
};

}  // namespace orbisol
