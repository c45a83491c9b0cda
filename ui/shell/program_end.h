// The end of the program that nobody at its window asked for: by a signal, by the session or because the
// display went away. Nothing is lost then, and nobody is asked. Only where nothing can be kept anywhere, as
// on a full disk, a session that can go on is told to.
//
//   CCalendarFrame frame(services);
//   const CProgramEnd end(frame);  // from here on
//   frame.Open();
//   return QApplication::exec();
#pragma once

#include <QObject>

#include "platform/end_signals.h"

class QSessionManager;

namespace orbisol {

class CCalendarFrame;

class CProgramEnd : public QObject {
 public:
  // One at a time. `frame` outlives it.
  explicit CProgramEnd(CCalendarFrame& frame);
  ~CProgramEnd() override;

  // Answers the session's order to quit, at which the toolkit would close the windows one by one, with their
  // questions.
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void End();
  // Says that the session cannot end yet, and keeps it from ending where its manager allows that.
  void Hold(QSessionManager& session);

  CCalendarFrame& m_frame;
  const CEndSignals m_signals;
};

}  // namespace orbisol
