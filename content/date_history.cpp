#include "content/date_history.h"

namespace orbisol {

void CDateHistory::Visit(PackedDate date, DateMove move) {
  if (m_dates.empty()) {
    m_dates.push_back(date);
    return;
  }
  if (date == m_dates[m_present]) return;
  m_dates.resize(m_present + 1);

  const bool goesOn = move == m_reachedBy && move != DateMove::kLeap;
  if (!goesOn) {
    m_dates.push_back(date);
    if (m_dates.size() > kMostDates) m_dates.erase(m_dates.begin());
    m_reachedBy = move == DateMove::kTypingBegins ? DateMove::kTyping : move;
  } else if (m_present > 0 && m_dates[m_present - 1] == date) {
    m_dates.pop_back();  // the walk has returned to where it began
    m_reachedBy = DateMove::kLeap;
  } else {
    m_dates[m_present] = date;
  }
  m_present = m_dates.size() - 1;
}

PackedDate CDateHistory::Back() {
  if (!CanGoBack()) return 0;
  m_reachedBy = DateMove::kLeap;
  return m_dates[--m_present];
}

PackedDate CDateHistory::Forward() {
  if (!CanGoForward()) return 0;
  m_reachedBy = DateMove::kLeap;
  return m_dates[++m_present];
}

}  // namespace orbisol
