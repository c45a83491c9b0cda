// Calendar rules for tests, and the reforms that nations made.
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

// The distinct dates in the list that `ncal -p` prints (Debian ncal 12.1.8): the last day of the old
// calendar. The first of the new one is the next day, converted by hand.
struct NationalReform {
  PackedDate lastJulian;
  PackedDate firstGregorian;
};
constexpr NationalReform kNationalReforms[] = {
    {15821004, 15821015},  // Italy, Poland, Portugal, Spain
    {15821209, 15821220},  // France
    {15821214, 15821225},  // Belgium, Luxembourg, Netherlands
    {15831005, 15831016},  // Austria
    {15840106, 15840117},  // Czech Republic
    {15871021, 15871101},  // Hungary
    {16550228, 16550311},  // Switzerland
    {17000218, 17000301},  // Denmark, Germany, Norway
    {17001116, 17001128},  // Iceland
    {17520902, 17520914},  // Australia, Canada, United Kingdom, United States
    {17530217, 17530301},  // Finland, Sweden
    {19111218, 19120101},  // China
    {19121130, 19121214},  // Albania
    {19160331, 19160414},  // Bulgaria
    {19180131, 19180214},  // Russia
    {19180201, 19180215},  // Latvia, Lithuania
    {19181218, 19190101},  // Japan
    {19190304, 19190318},  // Slovenia, Yugoslavia
    {19190331, 19190414},  // Romania
    {19240309, 19240323},  // Greece
    {19261218, 19270101},  // Turkey
};

}  // namespace orbisol
