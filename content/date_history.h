// The dates visited, like the pages of a browser: leaps can be taken back and forth again.
//
//   history.Visit(20240501, DateMove::kLeap);
//   history.Visit(39991231, DateMove::kLeap);  // End
//   history.Back();                            // 20240501
//
// Steps in a row are a walk, and a walk counts once: where it began and where it is now are both kept, the
// days between are not. One step back after a hundred days with the arrow keys returns to where they
// began. What is typed is a walk of its own.
#pragma once

#include <cstddef>
#include <vector>

#include "content/selected_date.h"
#include "core/packed_date.h"

namespace orbisol {

class CDateHistory {
 public:
  // Adds a date; the first one is the oldest that Back() returns. Visiting the present date again changes
  // nothing; another one forgets the dates that lay ahead. The oldest are forgotten first, from kMostDates
  // on.
  void Visit(PackedDate date, DateMove move);

  bool CanGoBack() const { return m_present > 0; }
  bool CanGoForward() const { return m_present + 1 < m_dates.size(); }

  // Return the date to show now; 0 when there is none on that side.
  PackedDate Back();
  PackedDate Forward();

  static constexpr std::size_t kMostDates = 500;

 private:
  std::vector<PackedDate> m_dates;         // no two neighbors are equal
  std::size_t m_present = 0;               // index of the date shown
  DateMove m_reachedBy = DateMove::kLeap;  // the present date; a walk of the same kind goes on from there
};

}  // namespace orbisol
