#include "ui/preferences/sample_month.h"

#include <algorithm>

#include "core/civil_year.h"
#include "ui/painting/month_texts.h"
#include "ui/preferences/preview_elements.h"
#include "ui/toolkit/plain_text.h"

namespace orbisol {
namespace {

constexpr int kSampleYear = 2011;
constexpr int kSampleMonth = 3;
constexpr int kSampleHoliday = 8;
constexpr int kSampleEvent = 17;
constexpr int kSampleActive = 10;
constexpr int kVacationFirst = 21;
constexpr int kVacationLast = 25;

DayEvent SampleRule(int day, bool isPublic, PreviewElement element) {
  DayEvent rule;
  rule.isPublic = isPublic;
  rule.month = kSampleMonth;
  rule.day = day;
  rule.ymdFrom = kAlwaysFrom;
  rule.ymdTo = kAlwaysTo;
  rule.name.Set(Utf16View(ElementName(element)));
  return rule;
}

CalendarContent SampleContent() {
  CalendarContent content;
  content.dayEvents = {SampleRule(kSampleHoliday, true, kElementHoliday),
                       SampleRule(kSampleEvent, false, kElementEvent)};
  HolidayPeriod vacation;
  vacation.ymdFrom = Pack(kSampleYear, kSampleMonth, kVacationFirst);
  vacation.ymdTo = Pack(kSampleYear, kSampleMonth, kVacationLast);
  vacation.title.Set(Utf16View(ElementName(kElementVacation)));
  content.vacations = {vacation};
  return content;
}

}  // namespace

SampleMonth MakeSample(SampleKind kind, const Preferences& edited) {
  const ScopedRules inForce(edited.rules);
  SampleMonth sample;
  YearMonthDay active = {kSampleYear, kSampleMonth, kSampleActive};
  YearMonthDay shown = active;
  if (kind == SampleKind::kElements) {
    sample.content = SampleContent();
  } else {
    active = Unpack(edited.rules.startGregorian);
    // The dates that go begin at this one, often in the month before.
    shown = Unpack(std::min(edited.rules.julianEquivalentOfStart, edited.rules.startGregorian));
    if (shown.year < kFirstYearShown) shown = active;
  }
  sample.month.year = shown.year;
  sample.month.month = shown.month;
  sample.month.Build(sample.content, edited.display.colors, MonthModel::kWithMoon);
  sample.marks.month = active.month;
  sample.marks.day = active.day;
  sample.title = MonthAndYear(MonthTitle(sample.month.month),
                              CivilYear(Pack(sample.month.year, sample.month.month, sample.month.day)));
  return sample;
}

QString SampleTitleText() { return MonthAndYear(MonthTitle(kSampleMonth), kSampleYear); }

}  // namespace orbisol
