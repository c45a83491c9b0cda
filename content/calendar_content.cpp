#include "content/calendar_content.h"

namespace orbisol {

CalendarContent& Content() {
  static CalendarContent content;
  return content;
}

}  // namespace orbisol
