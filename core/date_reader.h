// Reads a date as somebody types it: "14 juillet 1789", "15/3/-44", "18 brumaire an VIII", "Pâques 2024",
// "2299161", "dans 3 semaines".
//
//   const DateReadings read = ReadDates(u"44", 20240515);
//   read.readings[0].date;                  // 440515: the year 44, month and day of the selected date
//   read.readings[1].date;                  // 20440515: the year nearest to today
//   ReadingText(read.readings[0]);          // "vendredi 15 mai de l'an 44, julien"
//
//   const DateReadings none = ReadDates(u"31 avril 2024", 20240515);
//   none.readings.empty();                  // true
//   none.reason;                            // "Cette date n'existe pas : avril 2024 a 30 jours."
//   ReadingText(none.offers[0]);            // "mardi 30 avril 2024"
//
// The form is free: case, accents, "1er", any blank, any of "/", ".", "-" between numbers. The meaning is
// not: a date that does not exist is refused, and several meanings are several readings. French words are
// always understood, and the names of the user's locale. Without a mark ("julien", "(g)", "nouveau style")
// a date is one of the calendar in force. Today is the platform's, and so is the order of the numbers.
//
// ReadingText() of a reading, read again, gives that reading's day first. Nothing here fails or throws.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/packed_date.h"

namespace orbisol {

constexpr std::size_t kMostTypedUnits = 100;  // the rest of a text is not looked at
constexpr std::size_t kMostReadings = 8;

// Tells how a reading came to its day, beside the words of the text.
enum class DateNote {
  kNone,
  kOtherOrder,      // the numbers in another order than the user's; `number` is as Date::dateOrder
  kNearestCentury,  // two digits, taken for the year nearest to today
  kFromJulian,      // a Julian date, `typed`
  kFromGregorian,   // a Gregorian date, `typed`, also before the reform
  kMissing,         // `typed` was dropped by the reform, and counts as a Julian date
  kDayNumber,       // the day with the Julian day number `number`
  kDayOfYear,       // the day `number` of the year
  kWeek,            // a day of the week `number` of the year typed.year
  kRepublican,      // `typed` holds year, month 1..13 and day
  kFeast,           // `number` days after Easter Sunday, `typed`
};

struct DateReading {
  PackedDate date = 0;  // day of the calendar in force, within the years shown; exists
  DateNote note = DateNote::kNone;
  YearMonthDay typed = {0, 0, 0};  // date that `note` tells of
  int number = 0;                  // number that `note` tells of
  bool isMarked = false;           // true where the text named the calendar
  bool isOtherWeekday = false;     // true where the text names another weekday than the day's, or another day
                                   // of the décade

  bool operator==(const DateReading&) const = default;
};

enum class DateRefusal {
  kNone,
  kEmpty,
  kNotADate,  // words that are known, but make no date
  kUnknownWord,
  kContradiction,     // two eras, two calendars, two years
  kNoYearZero,        // "0 av. J.-C."
  kOutOfBounds,       // a day outside the years shown
  kNoMonth,           // a month outside 1..12
  kNoEaster,          // a feast before 326
  kNoWeek,            // a week that the year does not have
  kNoDayOfYear,       // likewise
  kNoRepublicanYear,  // outside 1..2300
  kNoDayOfRepublicanMonth,
  kNoRepublicanDay,  // a sixth complementary day of a common year
  kNoDay,            // a day that its month does not have
};

struct DateReadings {
  std::vector<DateReading> readings;          // best first, no day twice, at most kMostReadings
  DateRefusal refusal = DateRefusal::kEmpty;  // kNone where there are readings
  std::u16string reason;                      // one French sentence; empty where there are readings
  std::vector<DateReading>
      offers;  // days that can be meant instead, nearest first, no day twice; may be empty
};

// Reads a text. `selected` (within the years shown) gives what the text leaves out: "15 mars", "1789".
DateReadings ReadDates(std::u16string_view text, PackedDate selected);

// Returns the day of a reading, unmistakably: "mardi 15 mars −44 (45 av. J.-C.), julien". French, whatever
// the locale is. The year is the one that begins on 1 January; a civil year that differs is named beside it.
std::u16string ReadingText(const DateReading& reading);

// Returns how the text was understood where that does not go without saying: "le 10 octobre 1582 n'existe
// pas, lu comme date julienne"; else empty.
std::u16string ReadingNote(const DateReading& reading);

}  // namespace orbisol
