// The place of a top-level window on the screens. A placement opens the window where it was closed, corrects
// that once the window manager has put its frame around it, and tells its place when it closes.
//
//   CFramePlacement placement(window);                // lives as long as the window
//   placement.Open(ToQRect(layout.rect), layout.maximized);
//   placement.Widen(-paneWidth);                      // a part of the window goes, and its room with it
//   SavePrintWindowLayout(store, layout, placement.Closing(), VirtualScreen());
//
// Rectangles are in the pixels of the toolkit and hold the frame; an inside is what the frame surrounds. The
// margins between the two are known only some time after the window was shown, and on some desktops never:
// until then the inside has the size that is meant for the frame.
#pragma once

#include <QList>
#include <QMargins>
#include <QObject>
#include <QRect>

#include <functional>

#include "settings/settings_persistence.h"

class QWidget;

namespace orbisol {

// Returns the smallest rectangle around all screens.
Rect VirtualScreen();

class CFramePlacement : public QObject {
 public:
  explicit CFramePlacement(QWidget& window);

  // Shows the window at a stored rectangle. A rectangle below the window's least size, or at a place where
  // its title bar is out of reach, is first made large enough and then moved into the free area of its
  // screen.
  void Open(const QRect& frame, bool isMaximized);

  // Shows the window in the middle of the free area of the primary screen. `fitHeight`, where given, returns
  // the height of the inside that suits the window best, at most the one it gets.
  void OpenCentred(const QSize& frame, std::function<int(int)> fitHeight = {});

  // Makes the window wider by `change` pixels, narrower when negative. Maximized, minimized or on the full
  // screen it keeps its size, and its normal size changes instead.
  void Widen(int change);

  // Returns false while the window is maximized, minimized or on the full screen.
  bool HasNormalSize() const;

  // Returns the rectangle of the window, in its normal size, and its state. The fields of the pane keep their
  // defaults.
  ClosingFrame Closing() const;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

  // Returns the margins between frame and inside; all 0 while they are not known. Tests have their own.
  virtual QMargins FrameMargins() const;

 private:
  void Show(const QRect& frame, bool isMaximized);
  QRect Target(const QMargins& margins) const;
  bool IsAskedPlace(const QPoint& place, const QMargins& margins) const;
  bool IsAskedWidth(int width) const;
  bool IsAskedHeight(int height) const;
  QRect FrameOf(const QRect& inside, const QMargins& margins, int owed) const;
  void Correct();
  void ReturnToNormal(bool isLastCheck);
  void Resize(int change);

  QWidget& m_window;
  QRect m_wanted;                       // rectangle, with the frame, where the window should be
  bool m_isCentred = false;             // whether m_wanted has a size alone
  std::function<int(int)> m_fitHeight;  // of OpenCentred; null for none
  QPoint m_askedPlace;                  // place that was asked for, of the frame
  QList<QSize> m_asked;        // sizes that were asked for, of the inside; any of them may still arrive
  QMargins m_margins;          // margins last seen at the normal size
  bool m_isCorrected = false;  // whether the margins have been taken off
  int m_owedWidth = 0;         // change of the normal width while the window has another
  int m_normalWidth = 0;       // width of the inside without m_owedWidth; 0 until it is known
};

}  // namespace orbisol
