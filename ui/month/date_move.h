// In what way a hand moved the selected date.
#pragma once

namespace orbisol {

enum class DateMove {
  kStep,          // by days, months or years: keys, wheel, a drag, the arrows of the header
  kTypingBegins,  // to the first of the dates through which typing passes, as a year is typed digit by digit
  kTyping,        // to the next of them
  kLeap,          // to a day that was named: a click on it, a button, a menu
};

}  // namespace orbisol
