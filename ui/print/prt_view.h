// The preview of a page: the paper in its proportions on a grey ground, with the page drawn on it, as large
// as the user likes.
//
//   CPrtView view;
//   view.SetPage({{4961, 7016}, 600}, [&](QPainter& painter) { … });  // A4, drawn in dots of 600 to the inch
//   view.SetZoom(CPrtView::kFitWidth);
//   connect(&view, &CPrtView::pageTurned, this, [this](int step) { … });  // -1 the page before, 1 the one
//   after
//
// The page is drawn in the dots of its paper, whatever the zoom, so that it looks as it is printed. Ctrl and
// the wheel zoom around the pointer, dragging moves the paper. Page Up and Page Down move through a page that
// is larger than the view, and then to the next page; so does the wheel.
#pragma once

#include <QAbstractScrollArea>
#include <QImage>

#include <functional>

#include "ui/toolkit/wheel_steps.h"

namespace orbisol {

// Size of a paper in dots, and how many of them make an inch.
struct PaperSize {
  QSize dots;
  int dotsPerInch = 600;

  bool operator==(const PaperSize&) const = default;
};

class CPrtView : public QAbstractScrollArea {
  Q_OBJECT

 public:
  // A zoom is a percentage of the paper's own size, or one of these.
  enum Fit : int { kFitPage = 0, kFitWidth = -1 };
  static constexpr int kLeastPercent = 10;
  static constexpr int kMostPercent = 800;

  explicit CPrtView(QWidget* parent = nullptr);

  // Sets what is shown. `draw` draws the page with the origin at the upper left corner of the paper; it is
  // called whenever the view needs the page, until another one is set.
  void SetPage(const PaperSize& paper, std::function<void(QPainter&)> draw);
  // Scrolls to the top of the page, or to its bottom.
  void ShowTop();
  void ShowBottom();

  // Takes a percentage, which is clamped to its bounds, or a Fit.
  void SetZoom(int zoom);
  int Zoom() const { return m_zoom; }
  // Returns the percentage in use, also where the page is fitted to the view.
  int Percent() const;
  // Go to the next step up or down; return false at the end of the steps.
  bool ZoomIn() { return ZoomStep(1); }
  bool ZoomOut() { return ZoomStep(-1); }

  // Returns the rectangle of the paper in the viewport, in points of the toolkit.
  QRect PaperRect() const;

  QSize sizeHint() const override;

 signals:
  void zoomChanged();
  void pageTurned(int step);

 protected:
  bool event(QEvent* event) override;
  bool viewportEvent(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void scrollContentsBy(int dx, int dy) override;

 private:
  double OwnScale() const;
  double Scale() const;
  QSize PaperPoints() const;
  bool ZoomStep(int direction);
  void ZoomAround(const QPoint& fixed, int steps);
  void LayOut();
  bool CanScroll(Qt::Orientation orientation, int direction) const;
  void DrawPart(const QRect& part, double ratio);
  void ShowGrip();

  PaperSize m_paper;
  std::function<void(QPainter&)> m_draw;
  int m_zoom = kFitPage;
  CWheelSteps m_wheel;
  QPoint m_grip;   // where the paper was last held while it is dragged
  QImage m_image;  // part of the page as it was last drawn, in pixels of the screen
  QRect m_part;    // that part in points, from the corner of the paper; empty when nothing is drawn
};

}  // namespace orbisol
