#include "ui/shell/date_history.h"

#include <cstdlib>

#include "core/date.h"

namespace orbisol {
namespace {

constexpr int kLongestStep = 366;  // days, a year with Ctrl

bool IsStep(PackedDate from, PackedDate to) {
  return std::abs(Date(from).DayNumber() - Date(to).DayNumber()) <= kLongestStep;
}

}  // namespace

void CDateHistory::Visit(PackedDate date, VisitBy by) {
  if (m_dates.empty()) {
    m_dates.push_back(date);
    return;
  }
  const PackedDate present = m_dates[m_present];
  if (date == present) return;
  m_dates.resize(m_present + 1);

  const bool isStep = by == VisitBy::kWalk || IsStep(present, date);
  if (isStep && m_isWalking) {
    m_dates[m_present] = date;
    return;
  }
  m_isWalking = isStep;
  m_dates.push_back(date);
  if (m_dates.size() > kMostDates) m_dates.erase(m_dates.begin());
  m_present = m_dates.size() - 1;
}

PackedDate CDateHistory::Back() {
  if (!CanGoBack()) return 0;
  m_isWalking = false;
  return m_dates[--m_present];
}

PackedDate CDateHistory::Forward() {
  if (!CanGoForward()) return 0;
  m_isWalking = false;
  return m_dates[++m_present];
}

}  // namespace orbisol
