#include "ui/window/frame_placement.h"

#include <QEvent>
#include <QGuiApplication>
#include <QLayout>
#include <QScreen>
#include <QTimer>
#include <QWidget>
#include <QWindow>

#include <algorithm>
#include <cstdlib>
#include <utility>

#include "settings/window_layout.h"
#include "ui/toolkit/geometry.h"

namespace orbisol {
namespace {

// Delays after the window was shown at which its margins are read, in milliseconds. The margins of a slow
// window manager are read later, when it moves, resizes or activates the window.
constexpr int kMarginChecks[] = {0, 50, 200, 600};

// Delays at which the size of a window that leaves the maximized state is read, in milliseconds. After the
// last one the size is set, whatever the window system made of it.
constexpr int kReturnChecks[] = {50, 200, 600};

// Difference between the asked and the actual size of a side, in pixels, that a fractional ratio of the
// screen explains.
constexpr int kRounding = 1;

// Part of a title bar, in pixels, that is enough to move the window by it.
constexpr int kGripWidth = 80;
constexpr int kGripHeight = 24;

bool IsNear(int a, int b) { return std::abs(a - b) <= kRounding; }
bool IsNear(const QPoint& a, const QPoint& b) { return IsNear(a.x(), b.x()) && IsNear(a.y(), b.y()); }

// Returns whether a window there can be seen and moved. Beside screens of different sizes there are places
// that lie on none of them.
bool IsWithinReach(const QRect& frame) {
  const QRect grip(frame.x(), frame.y(), frame.width(), kGripHeight);
  const QList<QScreen*> screens = QGuiApplication::screens();
  return std::any_of(screens.begin(), screens.end(), [&](const QScreen* screen) {
    const QRect seen = grip & screen->availableGeometry();
    return seen.width() >= std::min(kGripWidth, frame.width()) && seen.height() == kGripHeight;
  });
}

// Returns the free area of the screen on which the middle of the frame lies, or of the primary screen.
QRect FreeArea(const QRect& frame) {
  const QScreen* screen = QGuiApplication::screenAt(frame.center());
  if (screen == nullptr) screen = QGuiApplication::primaryScreen();
  return screen == nullptr ? frame : screen->availableGeometry();
}

QSize LeastSize(const QWidget& window) {
  if (window.layout() != nullptr) window.layout()->activate();
  return window.minimumSizeHint().expandedTo(window.minimumSize());
}

}  // namespace

Rect VirtualScreen() {
  const QScreen* const screen = QGuiApplication::primaryScreen();
  if (screen == nullptr) return {};
  return ToRect(screen->virtualGeometry());
}

CFramePlacement::CFramePlacement(QWidget& window) : QObject(&window), m_window(window) {
  window.installEventFilter(this);
}

void CFramePlacement::Open(const QRect& frame, bool isMaximized) { Show(frame, isMaximized); }

void CFramePlacement::OpenCentred(const QSize& frame, std::function<int(int)> fitHeight) {
  m_isCentred = true;
  m_fitHeight = std::move(fitHeight);
  Show({QPoint(), frame}, false);
}

void CFramePlacement::Show(const QRect& frame, bool isMaximized) {
  m_wanted = frame;
  const QRect place = Target(QMargins());
  m_askedPlace = place.topLeft();
  m_asked = {place.size()};
  m_window.move(place.topLeft());
  m_window.resize(place.size());
  if (isMaximized) {
    m_window.showMaximized();
  } else {
    m_window.show();
    m_asked.append(m_window.size());  // the window may have bounded the size itself
  }
}

bool CFramePlacement::HasNormalSize() const {
  return !m_window.isMaximized() && !m_window.isMinimized() && !m_window.isFullScreen();
}

// Returns the margins of the window system. Those behind QWidget::frameGeometry() may stay wrong for as long
// as the program runs when the window manager was slow.
QMargins CFramePlacement::FrameMargins() const {
  const QWindow* const handle = m_window.windowHandle();
  return handle == nullptr ? QMargins() : handle->frameMargins();
}

// Returns the rectangle, with the frame, where the window should be.
QRect CFramePlacement::Target(const QMargins& margins) const {
  const QSize least = LeastSize(m_window).grownBy(margins);
  QRect frame(m_wanted.topLeft(), m_wanted.size().expandedTo(least));
  if (m_isCentred) {
    const int around = margins.top() + margins.bottom();
    if (m_fitHeight) frame.setHeight(std::max(least.height(), m_fitHeight(frame.height() - around) + around));
    const QScreen* const screen = QGuiApplication::primaryScreen();
    const QRect area = screen == nullptr ? frame : screen->availableGeometry();
    frame.moveTo(area.x() + (area.width() - frame.width()) / 2,
                 area.y() + (area.height() - frame.height()) / 2);
  }
  const bool isEnlarged = frame.width() > m_wanted.width() || frame.height() > m_wanted.height();
  if (isEnlarged || !IsWithinReach(frame)) {
    const Rect fitted = FitRectToScreen(ToRect(frame), ToRect(FreeArea(frame)));
    frame = QRect(QPoint(fitted.left, fitted.top), QSize(fitted.Width(), fitted.Height()).expandedTo(least));
  }
  return frame;
}

bool CFramePlacement::eventFilter(QObject*, QEvent* event) {
  switch (event->type()) {
    case QEvent::Show:
      if (!m_isCorrected)
        for (const int wait : kMarginChecks) QTimer::singleShot(wait, this, &CFramePlacement::Correct);
      break;
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::WindowActivate:
      if (!m_isCorrected) QTimer::singleShot(0, this, &CFramePlacement::Correct);
      break;
    case QEvent::WindowStateChange:
      if (HasNormalSize())
        for (const int wait : kReturnChecks)
          QTimer::singleShot(wait, this, [this, wait] { ReturnToNormal(wait == kReturnChecks[2]); });
      break;
    default:
      break;
  }
  return false;
}

bool CFramePlacement::IsAskedPlace(const QPoint& place, const QMargins& margins) const {
  // Some window managers put the inside at the place that was asked for the frame.
  return IsNear(place, m_askedPlace) || IsNear(place, m_askedPlace + QPoint(margins.left(), margins.top()));
}

bool CFramePlacement::IsAskedWidth(int width) const {
  return std::any_of(m_asked.begin(), m_asked.end(),
                     [&](const QSize& size) { return IsNear(size.width(), width); });
}

bool CFramePlacement::IsAskedHeight(int height) const {
  return std::any_of(m_asked.begin(), m_asked.end(),
                     [&](const QSize& size) { return IsNear(size.height(), height); });
}

// Returns the frame around an inside whose width is about to change by `owed`. Before the correction it is
// the wanted frame, as far as nobody else has changed the window.
QRect CFramePlacement::FrameOf(const QRect& inside, const QMargins& margins, int owed) const {
  QRect frame = inside.marginsAdded(margins);
  frame.setWidth(frame.width() + owed);
  if (m_isCorrected) return frame;
  const QRect target = Target(margins);
  if (IsAskedPlace(inside.topLeft(), margins)) frame.moveTopLeft(target.topLeft());
  if (IsAskedWidth(inside.width())) frame.setWidth(target.width());
  if (IsAskedHeight(inside.height())) frame.setHeight(target.height());
  return frame;
}

// Takes the margins off the size once they are known. Changes that the user made meanwhile stay.
void CFramePlacement::Correct() {
  if (!m_window.isVisible() || !HasNormalSize()) return;
  const QMargins margins = FrameMargins();
  if (margins.isNull()) return;
  m_margins = margins;
  if (m_isCorrected) return;
  const QRect frame = FrameOf(m_window.geometry(), margins, std::exchange(m_owedWidth, 0));
  m_isCorrected = true;
  m_window.setGeometry(frame.marginsRemoved(margins));
}

// Gives the normal size the change that it is owed, once the window has that size again.
void CFramePlacement::ReturnToNormal(bool isLastCheck) {
  if (!HasNormalSize()) return;
  if (m_owedWidth != 0 && m_normalWidth > 0 && !IsNear(m_window.width(), m_normalWidth)) {
    if (!isLastCheck) return;
    m_window.resize(m_normalWidth, m_window.height());
  }
  Correct();
  Resize(std::exchange(m_owedWidth, 0));
}

void CFramePlacement::Widen(int change) {
  m_wanted.setWidth(m_wanted.width() + change);
  if (HasNormalSize()) {
    Resize(change);
  } else {
    if (m_owedWidth == 0) m_normalWidth = m_window.normalGeometry().width();
    m_owedWidth += change;
  }
}

void CFramePlacement::Resize(int change) {
  if (change == 0) return;
  const QSize size(m_window.width() + change, m_window.height());
  m_asked.append(size);
  m_window.resize(size);
}

ClosingFrame CFramePlacement::Closing() const {
  ClosingFrame closing;
  closing.maximized = m_window.isMaximized();
  closing.minimized = m_window.isMinimized();
  closing.rect = ToRect(HasNormalSize() ? FrameOf(m_window.geometry(), FrameMargins(), 0)
                                        : FrameOf(m_window.normalGeometry(), m_margins, m_owedWidth));
  return closing;
}

}  // namespace orbisol
