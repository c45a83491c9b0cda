#include "ui/toolkit/wheel_steps.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace orbisol {
namespace {

constexpr int kNotch = 120;                // a notch of an ordinary wheel, in eighths of a degree
constexpr int kMostTurned = 100 * kNotch;  // bound for one event, above what any wheel sends
constexpr quint64 kPause = 1000;           // milliseconds after which the remainder is forgotten

}  // namespace

int CWheelSteps::Take(QWheelEvent& event) {
  const int turned = std::clamp(event.angleDelta().y(), -kMostTurned, kMostTurned);
  const int aside = std::clamp(event.angleDelta().x(), -kMostTurned, kMostTurned);
  const bool hasCtrl = event.modifiers() & Qt::ControlModifier;
  const quint64 pause = event.timestamp() - std::exchange(m_time, event.timestamp());
  if (event.phase() == Qt::ScrollBegin || pause > kPause || hasCtrl != m_hasCtrl) m_rest = 0;
  m_hasCtrl = hasCtrl;
  if (turned == 0 || std::abs(aside) > std::abs(turned)) {
    event.ignore();
    return 0;
  }
  event.accept();
  if ((turned < 0) != (m_rest < 0)) m_rest = 0;
  m_rest += turned;
  const int steps = m_rest / kNotch;
  m_rest %= kNotch;
  return steps;
}

}  // namespace orbisol
