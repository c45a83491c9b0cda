// The dates visited, like the pages of a browser: leaps can be taken back and forth again.
//
//   history.Visit(20240501);
//   history.Visit(39991231);  // End
//   history.Back();           // 20240501
//
// Short steps are a walk, and a walk counts once: where it began and where it is now are both kept, the days
// between are not. So one step back after a hundred days with the arrow keys returns to where they began.
#pragma once

#include <cstddef>
#include <vector>

#include "core/packed_date.h"

namespace orbisol {

enum class VisitBy {
  kDistance,  // a walk up to a year away, else a leap
  kWalk,      // a date on the way, as while a year is typed digit by digit
};

class CDateHistory {
 public:
  // The first visit is where it all begins. Visiting the present date again changes nothing; another one
  // forgets the dates that lay ahead. The oldest are forgotten first, from kMostDates on.
  void Visit(PackedDate date, VisitBy by = VisitBy::kDistance);

  bool CanGoBack() const { return m_present > 0; }
  bool CanGoForward() const { return m_present + 1 < m_dates.size(); }

  // The date to show now; 0 when there is none on that side.
  PackedDate Back();
  PackedDate Forward();

  static constexpr std::size_t kMostDates = 500;

 private:
  std::vector<PackedDate> m_dates;
  std::size_t m_present = 0;  // index of the date shown
  bool m_isWalking = false;   // the present date is the end of a walk
};

}  // namespace orbisol
