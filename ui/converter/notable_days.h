// The buttons that go to notable days: the groups "Afficher" (today) and "Premier jour" (of the Republican,
// the Gregorian and the Julian calendar, and of the era).
#pragma once

#include <QWidget>

#include "core/date.h"

namespace orbisol {

class CNotableDays : public QWidget {
  Q_OBJECT

 public:
  explicit CNotableDays(QWidget* parent = nullptr);

 signals:
  void dateChosen(PackedDate date);
};

}  // namespace orbisol
