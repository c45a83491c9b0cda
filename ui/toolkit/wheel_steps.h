// Turns of a wheel or of two fingers, added up to whole steps.
//
//   if (const int steps = m_wheel.Take(*event); steps != 0) StepMonths(date, -steps);
#pragma once

#include <QWheelEvent>

namespace orbisol {

class CWheelSteps {
 public:
  // Returns the notches of an ordinary wheel that are complete with this turn, positive away from the user.
  // Small turns of a touchpad add up; what is left over is forgotten after a second, after a turn the other
  // way, when fingers are laid down anew and when Ctrl is pressed or let go. Accepts the event, or leaves it
  // to others when it turns sideways.
  int Take(QWheelEvent& event);

 private:
  int m_rest = 0;  // turn since the last step, in eighths of a degree
  bool m_hasCtrl = false;
  quint64 m_time = 0;  // time of the last turn, in milliseconds
};

}  // namespace orbisol
