// Collects what a text can mean, best first, and why the rest of it can not.
//
//   CAnswer answer(request);
//   answer.AddYears(year, 7, 14);      // the 14 July of the years that a number can mean
//   answer.AddDayNumber(2299161, {});
//   return answer.Take();              // a weekday in the text decides here
#pragma once

#include <cstdint>
#include <initializer_list>

#include "core/date_reader.h"
#include "core/reader/request.h"
#include "core/text.h"

namespace orbisol::reader {

// A year that a number can mean, astronomical.
struct YearChoice {
  int year = 0;
  DateNote note = DateNote::kNone;
};

class CAnswer {
 public:
  explicit CAnswer(const Request& request) : m_request(request) {}

  // Returns the years that a number can mean, by the era, its sign and the number of its digits, best first.
  // Refuses the year 0 before the era, and what says two things.
  std::vector<YearChoice> YearsOf(const Item& number);

  // Adds a month and a day of the years that a number can mean: by the civil year first, then by the
  // historical one. With `pullsBack` a day that the month does not have becomes its last.
  void AddYears(const Item& year, int month, int day, bool pullsBack = false, DateReading reading = {});

  // Adds a date of the calendar that the text names, else of the one in force. Where a weekday is named, the
  // date in the other calendars is held ready.
  void AddDate(const YearMonthDay& typed, DateReading reading = {});

  // Adds a date, or the last day of its month where that is shorter.
  void AddPulledBack(const YearMonthDay& typed);

  // Adds the Gregorian date beside the one in force, for forms that a standard defines by it.
  void AddGregorianToo(const YearMonthDay& typed);

  // Adds a day by its number, named by its Gregorian date, unless it is there already.
  void AddGregorianDay(int dayNumber);

  // Add a day that exists.
  void AddDay(const Date& date, const DateReading& reading);
  void AddDayNumber(std::int64_t dayNumber, const DateReading& reading);

  // Holds a date ready for the case that the weekday fits no other.
  void AddOtherwise(const YearMonthDay& typed, const DateReading& reading);

  // Notes why a text is not read; the reason of the highest rank stays. `arguments` fill its pattern.
  void Refuse(DateRefusal refusal, std::initializer_list<FormatArgument> arguments = {});
  void Offer(const Date& date);

  bool HasReadings() const { return !m_readings.empty(); }
  const Request& Asked() const { return m_request; }
  DateReadings Take();

 private:
  struct Candidate {
    DateReading reading;
    bool isSpare = false;  // counts only where the weekday asks for it
  };

  int HistoricalOfDouble(int second, int month, int day) const;
  void AddIn(Calendar calendar, const YearMonthDay& typed, DateReading reading, bool isSpare);
  void AddInForce(const YearMonthDay& typed, DateReading reading, bool isSpare);
  void AddJulian(const YearMonthDay& typed, DateReading reading, bool isSpare);
  void AddGregorian(const YearMonthDay& typed, DateReading reading, bool isSpare);
  void Add(const Date& date, DateReading reading, bool isSpare);
  void RefuseDay(const YearMonthDay& typed, int dayNumber);
  void DecideByWeekday();

  const Request& m_request;
  std::vector<Candidate> m_readings;
  DateReadings m_result;
};

}  // namespace orbisol::reader
