// Sentences that tell, in French, how a typed date was understood.

#include "core/civil_year.h"
#include "core/date_reader.h"
#include "core/reader/words.h"
#include "core/republican.h"
#include "core/text.h"
#include "resources/strings.h"

namespace orbisol {
namespace {

using reader::FrenchMonth;
using reader::FrenchWeekday;
using reader::YearText;

constexpr int kFirstLongYear = 100;

enum DatePiece { kPattern, kBeforeEra, kCivilYear, kJulian, kGregorian, kFirstDay, kShortYear };
enum FeastPiece { kEaster, kDayAfter, kDaysAfter, kDayBefore, kDaysBefore };

std::u16string_view DatePieceText(DatePiece piece) {
  return Piece(StringText(kTextReadingDate), u'|', piece);
}

std::u16string DayText(int day) {
  return day == 1 ? std::u16string(DatePieceText(kFirstDay)) : DecimalText(day);
}

// Returns a year so that two digits are not taken for a day or for a year of another century.
std::u16string PlainYearText(int year) {
  const std::u16string text = YearText(year);
  return 0 <= year && year < kFirstLongYear ? FormatText(DatePieceText(kShortYear), {text}) : text;
}

std::u16string DayMonthYearText(const YearMonthDay& date) {
  return DayText(date.day) + u' ' + FrenchMonth(date.month) + u' ' + PlainYearText(date.year);
}

std::u16string_view NoteText(DateNote note) {
  return Piece(StringText(kTextReadingNotes), u'|', static_cast<int>(note) - 1);
}

std::u16string FeastNote(const DateReading& reading) {
  const auto piece = [](FeastPiece wanted) { return Piece(StringText(kTextReadingFeasts), u'|', wanted); };
  const std::u16string easter = DayMonthYearText(reading.typed);
  const int days = reading.number;
  if (days == 0) return std::u16string(piece(kEaster));
  if (days == 1 || days == -1) return FormatText(piece(days > 0 ? kDayAfter : kDayBefore), {easter});
  return FormatText(piece(days > 0 ? kDaysAfter : kDaysBefore), {days > 0 ? days : -days, easter});
}

std::u16string RepublicanNote(const DateReading& reading) {
  const YearMonthDay& date = reading.typed;
  const std::u16string year = RomanNumeral(date.year);
  if (date.month <= kComplementaryMonth)
    return FormatText(NoteText(DateNote::kRepublican),
                      {DayText(date.day), RepublicanMonthName(date.month - 1), year});
  const std::u16string text = RepublicanText(Date(reading.date));
  return text.substr(0, text.find(u'\n'));
}

std::u16string NoteOfReading(const DateReading& reading) {
  const YearMonthDay& typed = reading.typed;
  switch (reading.note) {
    case DateNote::kNone:
      return {};
    case DateNote::kOtherOrder:
      return FormatText(NoteText(reading.note),
                        {Piece(StringText(kTextReadingOrders), u'|', reading.number)});
    case DateNote::kFromJulian:
    case DateNote::kFromGregorian:
    case DateNote::kMissing:
      return FormatText(NoteText(reading.note),
                        {DayText(typed.day), FrenchMonth(typed.month), PlainYearText(typed.year)});
    case DateNote::kWeek:
      return FormatText(NoteText(reading.note), {reading.number, YearText(typed.year)});
    case DateNote::kRepublican:
      return RepublicanNote(reading);
    case DateNote::kFeast:
      return FeastNote(reading);
    default:
      return FormatText(NoteText(reading.note), {reading.number});
  }
}

// Returns the day, of the week or of the décade, that differs from the one that the text named.
std::u16string OtherDayNote(const DateReading& reading) {
  const std::u16string_view pattern = StringText(kTextReadingWeekdays);
  const Date date(reading.date);
  return FormatText(pattern, {DayMonthYearText({date.year, date.month, date.day}),
                              FrenchWeekday((date.Weekday(true) + 6) % kDaysInWeek + 1)});
}

}  // namespace

std::u16string ReadingText(const DateReading& reading) {
  const Date date(reading.date);
  const std::u16string weekday = FrenchWeekday((date.Weekday(true) + 6) % kDaysInWeek + 1);
  std::u16string text =
      FormatText(DatePieceText(kPattern),
                 {weekday, DayText(date.day), FrenchMonth(date.month), PlainYearText(date.year)});
  if (date.year <= 0) text += FormatText(DatePieceText(kBeforeEra), {YearBeforeEra(date.year)});
  const int civilYear = CivilYearOf(date);
  if (civilYear != date.year) text += FormatText(DatePieceText(kCivilYear), {YearText(civilYear)});
  const bool isJulian = DayOrder(date) < DayOrder(Rules().startGregorian);
  if (isJulian) {
    text += DatePieceText(kJulian);
  } else if (reading.isMarked || reading.note == DateNote::kFromJulian) {
    text += DatePieceText(kGregorian);
  }
  return text;
}

std::u16string ReadingNote(const DateReading& reading) {
  std::u16string note = NoteOfReading(reading);
  if (!reading.isOtherWeekday) return note;
  if (!note.empty()) note += u", ";
  return note + OtherDayNote(reading);
}

}  // namespace orbisol
