#include "files/calendar_params.h"

#include <algorithm>
#include <span>

#include "files/elements.h"

namespace orbisol {

namespace {

constexpr std::size_t kHexDigits = 6;  // digits of a color

std::u16string Value(std::u16string_view block, std::u16string_view tag, std::u16string_view ifMissing = {}) {
  std::ptrdiff_t position = 0;
  return GetElement(block, tag, position, ifMissing);
}

// Returns a hexadecimal number, read like a decimal one: digits up to the first other character, so that
// "00zz11" is 0.
Color HexNumber(std::u16string_view text) {
  Color number = 0;
  for (const char16_t unit : text) {
    const int digit = HexDigit(unit);
    if (digit < 0) break;
    number = number << 4 | static_cast<Color>(digit);
  }
  return number;
}

// Cuts the next piece off a list whose pieces end in ";", the last one possibly without. Empty pieces are
// skipped. Returns false when there is none left.
bool NextPiece(std::u16string_view& list, std::u16string_view& piece) {
  list.remove_prefix(std::min(list.find_first_not_of(u';'), list.size()));
  piece = list.substr(0, list.find(u';'));
  list.remove_prefix(piece.size());
  return !piece.empty();
}

void ReadColors(std::u16string_view table, std::array<Color, kColorCount>& colors) {
  // On purpose: a malformed piece leaves its color unchanged and still counts as a place of the table.
  std::u16string_view piece;
  for (std::size_t i = 0; i < colors.size() && NextPiece(table, piece); ++i)
    if (piece.size() == 1 + kHexDigits && piece[0] == u'#') colors[i] = HexNumber(piece.substr(1));
}

std::u16string ColorsText(const std::array<Color, kColorCount>& colors) {
  std::u16string out;
  for (const Color color : colors) {
    out += u'#';
    for (int shift = 4 * (static_cast<int>(kHexDigits) - 1); shift >= 0; shift -= 4)
      out += u"0123456789abcdef"[color >> shift & 0xF];
    out += u';';
  }
  return out;
}

std::u16string CivilYearsText(const CalendarConfig& config) {
  std::u16string out;
  for (const CivilYearStart* row = config.firstDayOfYear; row->from != 0; ++row) {
    if (row->plusOne) out += u'+';
    out += DecimalText(row->from);
    out += u';';
  }
  return out;
}

}  // namespace

void ReadCivilYears(std::u16string_view table, CalendarConfig& config) {
  for (CivilYearStart& row : config.firstDayOfYear) row = CivilYearStart();
  std::u16string_view piece;
  for (int row = 0; row < kCivilYearRows && NextPiece(table, piece); ++row) {
    const bool plusOne = piece[0] == u'+';
    const PackedDate from = ParseDecimal(plusOne ? piece.substr(1) : piece);
    if (from == 0) break;  // 0 ends the table for all scans of it
    config.firstDayOfYear[row] = {from, plusOne};
  }
  const std::span<CivilYearStart> rows(config.firstDayOfYear, kCivilYearRows);
  for (int bad = FirstBadRow(rows, config.startGregorian); bad >= 0;
       bad = FirstBadRow(rows, config.startGregorian))
    std::fill(rows.begin() + bad, rows.end(), CivilYearStart());
}

void ReadCalendarParams(std::u16string_view block, CalendarLook& look, CalendarRules& rules) {
  look.backgroundImage = Value(block, u"bgImage", u"1") == u"1";
  look.backgroundImagePath.Set(Value(block, u"bgImagePath"));
  look.fontName.Set(Value(block, u"fontName"));
  look.fontWeight = ParseDecimal(Value(block, u"fontWeight", u"400"));
  ReadColors(Value(block, u"colorTable"), look.colors);

  rules = DefaultCalendarRules();
  rules.proleptic = Value(block, u"proleptic") == u"1";
  rules.ApplyGregorianStart(
      GregorianStartOrDefault(ParseDecimal(Value(block, u"startGregorian", u"15821015"))));
  const int iso8601 = ParseDecimal(Value(block, u"iso8601", u"-1"));
  if (iso8601 != -1) rules.iso8601 = iso8601 != 0;
  ReadCivilYears(Value(block, u"firstDayOfYear"), rules);
}

std::u16string CalendarParamsText(const CalendarLook& look, const CalendarRules& rules) {
  std::u16string out;
  const auto line = [&](std::u16string_view tag, std::u16string_view value) {
    out += u'\t';
    out += MakeElement(value, tag);
  };
  const auto flag = [](bool on) { return on ? u"1" : u"0"; };
  line(u"bgImage", flag(look.backgroundImage));
  line(u"bgImagePath", look.backgroundImagePath.View());
  line(u"fontName", look.fontName.View());
  line(u"fontWeight", DecimalText(look.fontWeight));
  line(u"colorTable", ColorsText(look.colors));
  line(u"proleptic", flag(rules.proleptic));
  line(u"startGregorian", DecimalText(rules.startGregorian));
  line(u"iso8601", flag(rules.iso8601));
  line(u"firstDayOfYear", CivilYearsText(rules));
  return out;
}

}  // namespace orbisol
