#include "ui/print/prt_view.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyle>
#include <QWheelEvent>

#include <algorithm>
#include <iterator>
#include <utility>

namespace orbisol {
namespace {

constexpr int kMargin = 16;  // ground around the paper, in points
constexpr int kShadow = 3;   // points by which the paper's shadow stands out
constexpr int kShadowAlpha = 50;
constexpr int kGroundDarker = 112;  // percentage by which the ground is darker than the window

constexpr int kZoomSteps[] = {10,  25,  33,  50,  67,  75,  90,  100, 110,
                              125, 150, 175, 200, 250, 300, 400, 600, 800};
static_assert(*std::begin(kZoomSteps) == CPrtView::kLeastPercent);
static_assert(*std::rbegin(kZoomSteps) == CPrtView::kMostPercent);

int StepAbove(int percent) {
  const auto* const step = std::upper_bound(std::begin(kZoomSteps), std::end(kZoomSteps), percent);
  return step == std::end(kZoomSteps) ? percent : *step;
}

int StepBelow(int percent) {
  const auto* const step = std::lower_bound(std::begin(kZoomSteps), std::end(kZoomSteps), percent);
  return step == std::begin(kZoomSteps) ? percent : *std::prev(step);
}

}  // namespace

CPrtView::CPrtView(QWidget* parent) : QAbstractScrollArea(parent) {
  setFocusPolicy(Qt::StrongFocus);
  setFrameShape(QFrame::NoFrame);
  viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
}

void CPrtView::SetPage(const PaperSize& paper, std::function<void(QPainter&)> draw) {
  m_draw = std::move(draw);
  m_part = QRect();
  if (m_paper != paper) {
    m_paper = paper;
    LayOut();
    emit zoomChanged();
  }
  viewport()->update();
}

void CPrtView::ShowTop() { verticalScrollBar()->setValue(0); }

void CPrtView::ShowBottom() { verticalScrollBar()->setValue(verticalScrollBar()->maximum()); }

QSize CPrtView::sizeHint() const { return {600, 480}; }

// Returns the points of the screen that a dot takes in the paper's own size.
double CPrtView::OwnScale() const { return double{1} * logicalDpiX() / m_paper.dotsPerInch; }

// Returns the points of the screen that a dot takes.
double CPrtView::Scale() const {
  if (m_zoom > 0) return OwnScale() * m_zoom / 100;
  if (m_paper.dots.isEmpty()) return OwnScale();
  const QSize room = (maximumViewportSize() - QSize(2 * kMargin, 2 * kMargin)).expandedTo(QSize(1, 1));
  const double across = double{1} * room.width() / m_paper.dots.width();
  const double down = double{1} * room.height() / m_paper.dots.height();
  if (m_zoom == kFitPage || across <= down) return std::min(across, down);
  const int beside = room.width() - style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this);
  return std::max(down, double{1} * beside / m_paper.dots.width());
}

QSize CPrtView::PaperPoints() const { return (QSizeF(m_paper.dots) * Scale()).toSize(); }

int CPrtView::Percent() const { return m_zoom > 0 ? m_zoom : qRound(100 * Scale() / OwnScale()); }

void CPrtView::SetZoom(int zoom) {
  const int wanted = zoom > 0 ? std::clamp(zoom, kLeastPercent, kMostPercent) : zoom;
  if (wanted == m_zoom) return;
  const QPoint middle = viewport()->rect().center();
  const QRect before = PaperRect();
  const bool wasWhole = verticalScrollBar()->maximum() == 0;
  m_zoom = wanted;
  LayOut();
  const QSize after = PaperPoints();
  // The middle of what is seen stays in the middle.
  const double x = double{1} * (middle.x() - before.x()) / std::max(1, before.width());
  const double y = double{1} * (middle.y() - before.y()) / std::max(1, before.height());
  horizontalScrollBar()->setValue(qRound(x * after.width()) + kMargin - middle.x());
  verticalScrollBar()->setValue(qRound(y * after.height()) + kMargin - middle.y());
  if (m_zoom == kFitWidth && wasWhole) ShowTop();
  viewport()->update();
  emit zoomChanged();
}

bool CPrtView::ZoomStep(int direction) {
  const int percent = Percent();
  const int next = direction > 0 ? StepAbove(percent) : StepBelow(percent);
  if (next == percent) return false;
  SetZoom(next);
  return true;
}

// Zooms by steps, and keeps the point of the paper under `fixed` where it is.
void CPrtView::ZoomAround(const QPoint& fixed, int steps) {
  const QRect before = PaperRect();
  for (; steps != 0; steps += steps > 0 ? -1 : 1)
    if (!ZoomStep(steps)) break;
  const QSize after = PaperPoints();
  const double x = double{1} * (fixed.x() - before.x()) / std::max(1, before.width());
  const double y = double{1} * (fixed.y() - before.y()) / std::max(1, before.height());
  horizontalScrollBar()->setValue(qRound(x * after.width()) + kMargin - fixed.x());
  verticalScrollBar()->setValue(qRound(y * after.height()) + kMargin - fixed.y());
}

QRect CPrtView::PaperRect() const {
  const QSize paper = PaperPoints();
  const QSize room = viewport()->size();
  const int x = paper.width() + 2 * kMargin <= room.width() ? (room.width() - paper.width()) / 2
                                                            : kMargin - horizontalScrollBar()->value();
  const int y = paper.height() + 2 * kMargin <= room.height() ? (room.height() - paper.height()) / 2
                                                              : kMargin - verticalScrollBar()->value();
  return {QPoint(x, y), paper};
}

// Sets the ranges of the scroll bars. Each of them takes room from the other.
void CPrtView::LayOut() {
  m_part = QRect();
  const QSize whole = PaperPoints() + QSize(2 * kMargin, 2 * kMargin);
  QSize room = maximumViewportSize();
  const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this);
  const bool isHigh = whole.height() > room.height();
  const bool isWide = whole.width() > room.width() - (isHigh ? bar : 0);
  if (isWide) room.rheight() -= bar;
  if (whole.height() > room.height()) room.rwidth() -= bar;
  horizontalScrollBar()->setRange(0, std::max(0, whole.width() - room.width()));
  horizontalScrollBar()->setPageStep(room.width());
  horizontalScrollBar()->setSingleStep(fontMetrics().lineSpacing());
  verticalScrollBar()->setRange(0, std::max(0, whole.height() - room.height()));
  verticalScrollBar()->setPageStep(room.height());
  verticalScrollBar()->setSingleStep(fontMetrics().lineSpacing());
  ShowGrip();
}

bool CPrtView::CanScroll(Qt::Orientation orientation, int direction) const {
  const QScrollBar* const bar = orientation == Qt::Horizontal ? horizontalScrollBar() : verticalScrollBar();
  return direction > 0 ? bar->value() < bar->maximum() : bar->value() > bar->minimum();
}

void CPrtView::ShowGrip() {
  const bool isLarge = horizontalScrollBar()->maximum() > 0 || verticalScrollBar()->maximum() > 0;
  viewport()->setCursor(isLarge ? Qt::OpenHandCursor : Qt::ArrowCursor);
}

void CPrtView::DrawPart(const QRect& part, double ratio) {
  m_part = part;
  m_image = QImage((QSizeF(part.size()) * ratio).toSize(), QImage::Format_RGB32);
  m_image.fill(Qt::white);
  QPainter painter(&m_image);
  painter.translate(QPointF(-part.topLeft()) * ratio);
  painter.scale(Scale() * ratio, Scale() * ratio);
  if (m_draw) m_draw(painter);
  painter.end();
  m_image.setDevicePixelRatio(ratio);
}

void CPrtView::paintEvent(QPaintEvent*) {
  QPainter painter(viewport());
  const QRect paper = PaperRect();
  painter.fillRect(viewport()->rect(), palette().color(QPalette::Window).darker(kGroundDarker));
  painter.fillRect(paper.translated(kShadow, kShadow), QColor(0, 0, 0, kShadowAlpha));
  painter.setPen(palette().color(hasFocus() ? QPalette::Highlight : QPalette::Mid));
  painter.drawRect(paper.adjusted(-1, -1, 0, 0));

  const QRect seen = (paper & viewport()->rect()).translated(-paper.topLeft());
  if (seen.isEmpty()) return;
  const double ratio = devicePixelRatioF();
  if (!m_part.contains(seen) || m_image.devicePixelRatio() != ratio) {
    // Half a view more on each side, so that the next turn of the wheel finds it drawn.
    const QSize more = viewport()->size() / 2;
    const QRect grown = seen.adjusted(-more.width(), -more.height(), more.width(), more.height());
    DrawPart(grown & QRect(QPoint(), paper.size()), ratio);
  }
  painter.drawImage(paper.topLeft() + m_part.topLeft(), m_image);
}

void CPrtView::resizeEvent(QResizeEvent*) {
  LayOut();
  if (m_zoom <= 0) emit zoomChanged();
}

void CPrtView::scrollContentsBy(int, int) { viewport()->update(); }

bool CPrtView::event(QEvent* event) {
  // Page Up and Page Down are the keys of commands that turn the page. Here they first move through it.
  if (event->type() == QEvent::ShortcutOverride) {
    const auto& key = static_cast<QKeyEvent&>(*event);
    const bool isUp = key.key() == Qt::Key_PageUp;
    if (key.modifiers() == Qt::NoModifier && (isUp || key.key() == Qt::Key_PageDown) &&
        CanScroll(Qt::Vertical, isUp ? -1 : 1))
      event->accept();
  }
  if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut) viewport()->update();
  return QAbstractScrollArea::event(event);
}

void CPrtView::keyPressEvent(QKeyEvent* event) {
  const int key = event->key();
  const bool isAcross = key == Qt::Key_Left || key == Qt::Key_Right;
  const bool isBack = key == Qt::Key_Left || key == Qt::Key_Up;
  const bool isArrow = isAcross || key == Qt::Key_Up || key == Qt::Key_Down;
  const auto orientation = isAcross ? Qt::Horizontal : Qt::Vertical;
  const bool isLarge = horizontalScrollBar()->maximum() > 0 || verticalScrollBar()->maximum() > 0;
  if (isArrow && !isLarge && event->modifiers() == Qt::NoModifier) {
    emit pageTurned(isBack ? -1 : 1);
  } else if (isArrow && !CanScroll(orientation, isBack ? -1 : 1)) {
    event->accept();
  } else {
    QAbstractScrollArea::keyPressEvent(event);
  }
}

void CPrtView::wheelEvent(QWheelEvent* event) {
  if (event->modifiers().testFlag(Qt::ControlModifier)) {
    if (const int steps = m_wheel.Take(*event)) ZoomAround(event->position().toPoint(), steps);
    event->accept();
  } else if (const int down = -event->angleDelta().y(); down == 0 || CanScroll(Qt::Vertical, down)) {
    QAbstractScrollArea::wheelEvent(event);
  } else if (const int steps = m_wheel.Take(*event)) {
    emit pageTurned(steps > 0 ? -1 : 1);
  }
}

bool CPrtView::viewportEvent(QEvent* event) {
  if (event->type() == QEvent::Leave) m_grip = QPoint();
  return QAbstractScrollArea::viewportEvent(event);
}

void CPrtView::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  m_grip = event->position().toPoint();
  if (viewport()->cursor().shape() == Qt::OpenHandCursor) viewport()->setCursor(Qt::ClosedHandCursor);
}

void CPrtView::mouseMoveEvent(QMouseEvent* event) {
  if (!event->buttons().testFlag(Qt::LeftButton)) return;
  const QPoint moved = event->position().toPoint() - std::exchange(m_grip, event->position().toPoint());
  horizontalScrollBar()->setValue(horizontalScrollBar()->value() - moved.x());
  verticalScrollBar()->setValue(verticalScrollBar()->value() - moved.y());
}

void CPrtView::mouseReleaseEvent(QMouseEvent*) { ShowGrip(); }

}  // namespace orbisol
