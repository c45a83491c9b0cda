// In what way a hand moved the selected date.
#pragma once

namespace orbisol {

enum class DateMove {
  kStep,    // by days, months or years: keys, wheel, a drag, the arrows of the header
  kTyping,  // to a date on the way, as while a year is typed digit by digit
  kLeap,    // to a day that was named: a click on it, a button, a menu
};

}  // namespace orbisol
