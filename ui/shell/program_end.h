// The end of the program that nobody at its window asked for: by a signal, by the session or because the
// display went away. Nothing is lost then, and nobody is asked.
//
//   CCalendarFrame frame(services);
//   const CProgramEnd end(frame);  // from here on
//   frame.Open();
//   return QApplication::exec();
#pragma once

#include <QObject>

#include "platform/end_signals.h"

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

  CCalendarFrame& m_frame;
  const CEndSignals m_signals;
};

}  // namespace orbisol
