// Calendar rules for tests.
//
//   const ScopedRules inForce(RulesWith(17520914, {.rows = {{11550325, false}}}));
#pragma once

#include <algorithm>
#include <vector>

#include "core/calendar_config.h"

namespace orbisol {

struct RuleOptions {
  bool proleptic = false;
  std::vector<CivilYearStart> rows = {};  // most recent first, at most kCivilYearRows
  bool iso8601 = true;
};

inline CalendarRules RulesWith(PackedDate startGregorian, const RuleOptions& options = {}) {
  CalendarRules rules;
  rules.proleptic = options.proleptic;
  rules.iso8601 = options.iso8601;
  std::copy(options.rows.begin(), options.rows.end(), rules.firstDayOfYear);
  rules.ApplyGregorianStart(startGregorian);
  return rules;
}

}  // namespace orbisol
