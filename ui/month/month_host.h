// What the month view tells the window it stands in, and what it asks of it.
#pragma once

#include "core/date.h"
#include "content/selected_date.h"

namespace orbisol {

struct MonthHost {
  virtual ~MonthHost() = default;

  // The selected date was changed by the user's hand. Comes after the event of a key, a click or the wheel
  // has been dealt with, and at once during a drag.
  virtual void OnMonthDateChanged(DateMove move) = 0;

  // Days were dragged over, or selected with the keyboard: two at least, the earlier first.
  virtual void OpenPeriodEditor(const Date& from, const Date& to) = 0;

  // A day was opened: the selected one.
  virtual void OpenEventsEditor(const Date& date) = 0;
};

}  // namespace orbisol
