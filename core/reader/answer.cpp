#include "core/reader/answer.h"

#include <algorithm>
#include <cstdlib>

#include "core/civil_year.h"
#include "core/reader/words.h"
#include "resources/strings.h"

namespace orbisol::reader {
namespace {

constexpr int kCentury = 100;
constexpr int kSlack = 2;  // years outside those shown from which another calendar can still lead into them
constexpr int kLongestMonth = 31;

bool HasCivilYears() { return Rules().firstDayOfYear[0].from != 0; }

int WeekdayOf(const Date& date) {  // 1 Monday .. 7
  const int weekday = date.Weekday(true);
  return weekday == 0 ? kDaysInWeek : weekday;
}

// Returns the year that ends in these two digits and lies nearest to today's; the earlier of two equally
// near.
int NearestYear(int twoDigits) {
  const int today = Date::Today().year;
  int nearest = today - today % kCentury + twoDigits - kCentury;
  for (int year = nearest; year <= today + kCentury; year += kCentury)
    if (std::abs(year - today) < std::abs(nearest - today)) nearest = year;
  return nearest;
}

YearMonthDay GregorianDate(int dayNumber) {
  CalendarRules rules;
  rules.ApplyGregorianStart(kAlwaysGregorian);
  const ScopedRules inForce(rules);
  const Date date = DateOfDayNumber(dayNumber);
  return {date.year, date.month, date.day};
}

bool IsMonth(int month) { return 1 <= month && month <= 12; }

// Returns the last day of the month, at most `day`, that exists or was dropped.
int PulledBack(const YearMonthDay& date) {
  YearMonthDay pulled = date;
  while (pulled.day > 1 && !DoesDateExist(pulled) &&
         !Rules().IsDropped(Pack(pulled.year, pulled.month, pulled.day)))
    --pulled.day;
  return pulled.day;
}

}  // namespace

void CAnswer::Refuse(DateRefusal refusal, std::initializer_list<FormatArgument> arguments) {
  const bool isHigher = m_result.reason.empty() || refusal > m_result.refusal;
  if (!isHigher) return;
  const std::u16string_view pattern =
      Piece(StringText(kTextReaderRefusals), u'|', static_cast<int>(refusal) - 1);
  m_result.refusal = refusal;
  m_result.reason =
      refusal != DateRefusal::kOutOfBounds
          ? FormatText(pattern, arguments)
          : FormatText(pattern, {Date(kFirstDateShown).DayNumber(), Date(kLastDateShown).DayNumber()});
  m_result.offers.clear();
}

void CAnswer::Offer(const Date& date) {
  if (!IsWithinBounds(date)) return;
  DateReading reading;
  reading.date = date.Packed();
  const auto isSame = [&](const DateReading& offer) { return offer.date == reading.date; };
  if (std::none_of(m_result.offers.begin(), m_result.offers.end(), isSame))
    m_result.offers.push_back(reading);
}

std::vector<YearChoice> CAnswer::YearsOf(const Item& number) {
  const int value = number.isNegative ? -number.value : number.value;
  if (m_request.era != Era::kNone && HasSign(number)) {
    Refuse(DateRefusal::kContradiction);
    return {};
  }
  if (m_request.yearBeforeEra != 0 && YearBeforeEra(value) != m_request.yearBeforeEra) {
    Refuse(DateRefusal::kContradiction);
    return {};
  }
  if (m_request.era == Era::kBefore || (m_request.era == Era::kIn && value == 0)) {
    if (value == 0) {
      Refuse(DateRefusal::kNoYearZero);
      return {};
    }
    return {{1 - value, DateNote::kNone}};
  }
  if (number.hasApostrophe) return {{NearestYear(value % kCentury), DateNote::kNearestCentury}};
  const bool isShort = number.digits == 2 && !HasSign(number) && !number.isYear;
  if (isShort) return {{value, DateNote::kNone}, {NearestYear(value), DateNote::kNearestCentury}};
  return {{value, DateNote::kNone}};
}

// Adds the readings of a double year. Its second year is the historical one, unless the rows say that the
// civil year was ahead.
int CAnswer::HistoricalOfDouble(int second, int month, int day) const {
  const int first = m_request.doubleYear;
  const bool isAhead =
      CivilYear(Pack(first, month, day)) == second && CivilYear(Pack(second, month, day)) != first;
  return isAhead ? first : second;
}

void CAnswer::AddYears(const Item& year, int month, int day, bool pullsBack, DateReading reading) {
  const auto add = [&](int historicalYear, DateNote note) {
    YearMonthDay date = {historicalYear, month, day};
    if (pullsBack && IsMonth(month)) date.day = PulledBack(date);
    DateReading noted = reading;
    if (noted.note == DateNote::kNone) noted.note = note;
    AddDate(date, noted);
  };
  if (m_request.doubleYear != 0) return add(HistoricalOfDouble(year.value, month, day), DateNote::kNone);
  for (const YearChoice& choice : YearsOf(year)) {
    const bool isCivil =
        HasCivilYears() && !m_request.civilYear && m_request.calendar != Calendar::kGregorian;
    for (int historical = choice.year - 1; isCivil && historical <= choice.year + 1; ++historical)
      if (CivilYear(Pack(historical, month, day)) == choice.year) add(historical, choice.note);
    const bool fits =
        !m_request.civilYear || CivilYear(Pack(choice.year, month, day)) == *m_request.civilYear;
    if (fits) {
      add(choice.year, choice.note);
    } else {
      Refuse(DateRefusal::kContradiction);
    }
  }
}

void CAnswer::AddPulledBack(const YearMonthDay& typed) {
  AddDate({typed.year, typed.month, IsMonth(typed.month) ? PulledBack(typed) : typed.day});
}

void CAnswer::AddDate(const YearMonthDay& typed, DateReading reading) {
  reading.isMarked = m_request.calendar != Calendar::kInForce;
  AddIn(m_request.calendar, typed, reading, false);
  if (m_request.weekday != 0 && !reading.isMarked) AddOtherwise(typed, reading);
}

void CAnswer::AddOtherwise(const YearMonthDay& typed, const DateReading& reading) {
  if (m_request.weekday == 0 || m_request.calendar != Calendar::kInForce) return;
  for (const Calendar calendar : {Calendar::kInForce, Calendar::kJulian, Calendar::kGregorian})
    AddIn(calendar, typed, reading, true);
}

void CAnswer::AddGregorianToo(const YearMonthDay& typed) {
  if (m_request.calendar == Calendar::kInForce) AddIn(Calendar::kGregorian, typed, {}, false);
}

void CAnswer::AddIn(Calendar calendar, const YearMonthDay& typed, DateReading reading, bool isSpare) {
  const bool canBe =
      IsMonth(typed.month) && kFirstYearShown - kSlack <= typed.year && typed.year <= kLastYearShown + kSlack;
  if (!canBe) {
    if (isSpare) return;
    if (!IsMonth(typed.month)) return Refuse(DateRefusal::kNoMonth, {typed.month});
    return Refuse(DateRefusal::kOutOfBounds);
  }
  if (calendar == Calendar::kInForce) return AddInForce(typed, reading, isSpare);
  if (calendar == Calendar::kJulian) return AddJulian(typed, reading, isSpare);
  AddGregorian(typed, reading, isSpare);
}

void CAnswer::AddInForce(const YearMonthDay& typed, DateReading reading, bool isSpare) {
  const Date date(typed.year, typed.month, typed.day);
  if (DoesDateExist(typed)) return Add(date, reading, isSpare);
  if (isSpare) return;
  const bool isDropped = Rules().IsDropped(date.Packed()) && typed.day <= LongestMonth(typed.month);
  if (!isDropped) return RefuseDay(typed, date.DayNumber());
  reading.note = DateNote::kMissing;
  reading.typed = typed;
  Add(DateOfDayNumber(date.DayNumber()), reading, isSpare);
}

// Adds a Julian date. Before the reform it is the date itself, with the leap years in force; from the reform
// on it is one of the Julian calendar without their early errors (Date::JulianForm).
void CAnswer::AddJulian(const YearMonthDay& typed, DateReading reading, bool isSpare) {
  const Date asItStands(typed.year, typed.month, typed.day);
  const PackedDate packed = asItStands.Packed();
  const bool isBeforeReform =
      DayOrder(packed) < DayOrder(Rules().startGregorian) || asItStands.JulianForm() == packed;
  if (isBeforeReform && DoesDateExist(typed)) return Add(asItStands, reading, isSpare);
  const int dayNumber = DayNumberUnder(typed.year, typed.month, typed.day, kNeverGregorian, true);
  const Date date = DateOfDayNumber(dayNumber);
  if (date.JulianForm() != packed) {
    if (!isSpare) RefuseDay(typed, dayNumber);
    return;
  }
  reading.note = DateNote::kFromJulian;
  reading.typed = typed;
  Add(date, reading, isSpare);
}

void CAnswer::AddGregorian(const YearMonthDay& typed, DateReading reading, bool isSpare) {
  const int dayNumber = DayNumberUnder(typed.year, typed.month, typed.day, kAlwaysGregorian, true);
  if (typed.day < 1 || typed.day > GregorianDaysInMonth(typed.year, typed.month)) {
    if (!isSpare) RefuseDay(typed, dayNumber);
    return;
  }
  const Date date = DateOfDayNumber(dayNumber);
  if (date.Packed() != Pack(typed.year, typed.month, typed.day)) {
    reading.note = DateNote::kFromGregorian;
    reading.typed = typed;
  }
  Add(date, reading, isSpare);
}

void CAnswer::AddGregorianDay(int dayNumber) {
  const Date date = DateOfDayNumber(dayNumber);
  DateReading reading;
  reading.note = DateNote::kFromGregorian;
  reading.typed = GregorianDate(dayNumber);
  Add(date, reading, false);
}

void CAnswer::AddDay(const Date& date, const DateReading& reading) { Add(date, reading, false); }

void CAnswer::AddDayNumber(std::int64_t dayNumber, const DateReading& reading) {
  Add(DateOfDayNumber(Saturate(dayNumber)), reading, false);
}

void CAnswer::Add(const Date& date, DateReading reading, bool isSpare) {
  if (!IsWithinBounds(date)) {
    if (!isSpare) Refuse(DateRefusal::kOutOfBounds);
    return;
  }
  reading.date = date.Packed();
  const bool isKnown = std::any_of(m_readings.begin(), m_readings.end(), [&](const Candidate& candidate) {
    return candidate.reading.date == reading.date && candidate.isSpare == isSpare;
  });
  if (!isKnown) m_readings.push_back({reading, isSpare});
}

// Offers the day that the date counts as, and the one before it.
void CAnswer::RefuseDay(const YearMonthDay& typed, int dayNumber) {
  if (DateRefusal::kNoDay <= m_result.refusal && !m_result.reason.empty()) return;
  const int length = PulledBack({typed.year, typed.month, kLongestMonth});
  Refuse(DateRefusal::kNoDay, {FrenchMonth(typed.month), YearText(typed.year), length});
  if (typed.day > kLongestMonth || typed.day < 1) return;
  const bool isInForce = m_request.calendar == Calendar::kInForce;
  Offer(isInForce ? Date(typed.year, typed.month, PulledBack(typed)) : DateOfDayNumber(dayNumber - 1));
  Offer(DateOfDayNumber(dayNumber));
}

void CAnswer::DecideByWeekday() {
  const auto isOther = [&](const Candidate& candidate) {
    return WeekdayOf(Date(candidate.reading.date)) != m_request.weekday;
  };
  if (std::all_of(m_readings.begin(), m_readings.end(), isOther)) {
    for (Candidate& candidate : m_readings) candidate.reading.isOtherWeekday = true;
    return;
  }
  m_readings.erase(std::remove_if(m_readings.begin(), m_readings.end(), isOther), m_readings.end());
  for (Candidate& candidate : m_readings) candidate.isSpare = false;
}

DateReadings CAnswer::Take() {
  std::stable_partition(m_readings.begin(), m_readings.end(),
                        [](const Candidate& candidate) { return !candidate.isSpare; });
  if (m_request.weekday != 0) DecideByWeekday();
  std::vector<DateReading>& readings = m_result.readings;
  for (const Candidate& candidate : m_readings) {
    const bool isKnown = std::any_of(readings.begin(), readings.end(), [&](const DateReading& reading) {
      return reading.date == candidate.reading.date;
    });
    if (!isKnown && !candidate.isSpare && readings.size() < kMostReadings)
      readings.push_back(candidate.reading);
  }
  if (readings.empty()) {
    if (m_result.reason.empty()) Refuse(DateRefusal::kNotADate);
    return std::move(m_result);
  }
  m_result.refusal = DateRefusal::kNone;
  m_result.reason.clear();
  m_result.offers.clear();
  return std::move(m_result);
}

}  // namespace orbisol::reader
