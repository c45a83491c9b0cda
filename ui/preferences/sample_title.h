// A sample of the month's title in the colors and the font being edited, to be clicked like the preview.
#pragma once

#include <QWidget>

#include "settings/display_settings.h"

namespace orbisol {

class CSampleTitle : public QWidget {
  Q_OBJECT

 public:
  explicit CSampleTitle(QWidget* parent = nullptr);

  void SetLook(const DisplaySettings& settings);

  QSize sizeHint() const override;

 signals:
  void clicked(Qt::MouseButton button);  // left or right

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;

 private:
  DisplaySettings m_settings;
};

// Draws a title over a month in a rectangle, in the title's colors, bold, in letters of `height` pixels.
void PaintTitle(QPainter& painter, const QRect& rect, int height, const QString& title,
                const DisplaySettings& settings, const QFont& dialogFont);

}  // namespace orbisol
