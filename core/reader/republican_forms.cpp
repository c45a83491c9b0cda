// Dates of the Republican calendar.

#include "core/reader/forms.h"
#include "core/reader/words.h"
#include "core/republican.h"

namespace orbisol::reader {
namespace {

constexpr int kDaysInRepublicanMonth = 30;
constexpr int kDaysInDecade = 10;
constexpr int kSixthDay = 6;

struct Entry {
  int year = 0;   // 0 where none is given
  int month = 0;  // 1..13
  int day = 0;    // 0 likewise
};

// Notes one of the numbers: the day comes first, and a year stands behind "an". A year that is given twice
// must be the same one.
bool TakeNumber(const Item& number, Entry& entry) {
  if (HasSign(number)) return false;
  const bool isDay = entry.day == 0 && !number.isYear;
  int& field = isDay ? entry.day : entry.year;
  const bool fits = field == 0 || field == number.value;
  field = number.value == 0 ? -1 : number.value;
  return fits;
}

// Returns the day of the selected date in its Republican month; 1 where it has none.
int SelectedDay(const Request& request) {
  if (DayOrder(request.selected) < DayOrder(Date(kRepublicanEpoch))) return 1;
  return ToRepublican(request.selected).dayIndex + 1;
}

// Sets what the words and numbers say; false where they are more than a date. A month without a day keeps the
// selected one.
bool TakeItems(const Request& request, Entry& entry) {
  for (const Item& item : request.items) {
    const bool isMonth = item.kind == WordKind::kRepublicanMonth || item.kind == WordKind::kComplementary ||
                         item.kind == WordKind::kComplementaryDay;
    if (isMonth) {
      if (entry.month != 0) return false;
      entry.month = item.kind == WordKind::kRepublicanMonth ? item.value : kComplementaryMonth + 1;
      if (item.kind == WordKind::kComplementaryDay) {
        if (entry.day != 0) entry.year = entry.day;  // "an III, jour de la Vertu" without "an"
        entry.day = item.value;
      }
    } else if (!IsNumber(item) || !TakeNumber(item, entry)) {
      return false;
    }
  }
  if (entry.day == 0 && entry.month <= kComplementaryMonth) entry.day = SelectedDay(request);
  return entry.month != 0 && entry.day != 0;
}

bool IsOtherDecadeDay(int decadeDay, const Entry& entry) {
  const bool isFit =
      entry.month <= kComplementaryMonth && decadeDay % kDaysInDecade == entry.day % kDaysInDecade;
  return decadeDay != 0 && !isFit;
}

// Tells the two days apart from whose text a date is read: the pane shows the later one when it is entered.
void AddEntry(CAnswer& answer, const Entry& entry) {
  const Date date = FromRepublican(entry.year, entry.month, entry.day);
  DateReading reading;
  reading.note = DateNote::kRepublican;
  reading.typed = {entry.year, entry.month, entry.day};
  reading.isOtherWeekday = IsOtherDecadeDay(answer.Asked().decadeDay, entry);
  answer.AddDay(date, reading);
  const Date before = DateOfDayNumber(date.DayNumber() - 1);
  const bool isReadAlike = DayOrder(before) >= DayOrder(Date(kRepublicanEpoch)) &&
                           ToRepublican(before) == RepublicanDate{entry.year, entry.month - 1, entry.day - 1};
  if (isReadAlike) answer.AddDay(before, reading);
}

void RefuseSixthDay(CAnswer& answer, int year) {
  answer.Refuse(DateRefusal::kNoRepublicanDay, {year});
  answer.Offer(FromRepublican(year, kComplementaryMonth + 1, kSixthDay - 1));
  answer.Offer(FromRepublican(year, kComplementaryMonth + 1, kSixthDay));
}

}  // namespace

bool ReadRepublican(CAnswer& answer) {
  const Request& request = answer.Asked();
  const bool isRepublican = request.Has(WordKind::kRepublicanMonth) ||
                            request.Has(WordKind::kComplementary) || request.Has(WordKind::kComplementaryDay);
  if (!isRepublican) return false;
  Entry entry;
  if (!TakeItems(request, entry) || request.HasYearRemark() || request.calendar != Calendar::kInForce) {
    answer.Refuse(DateRefusal::kNotADate);
    return true;
  }
  if (entry.year == 0 && DayOrder(request.selected) >= DayOrder(Date(kRepublicanEpoch)))
    entry.year = ToRepublican(request.selected).year;
  const bool isComplementary = entry.month > kComplementaryMonth;
  if (entry.year < 1 || entry.year > kLastRepublicanYear) {
    answer.Refuse(DateRefusal::kNoRepublicanYear);
    answer.Offer(FromRepublican(entry.year, entry.month, entry.day));
  } else if (isComplementary && entry.day == kSixthDay && ComplementaryDays(entry.year) < kSixthDay) {
    RefuseSixthDay(answer, entry.year);
  } else if (entry.day < 1 || entry.day > (isComplementary ? kSixthDay : kDaysInRepublicanMonth)) {
    answer.Refuse(DateRefusal::kNoDayOfRepublicanMonth);
    answer.Offer(FromRepublican(entry.year, entry.month, entry.day));
  } else {
    AddEntry(answer, entry);
  }
  return true;
}

}  // namespace orbisol::reader
