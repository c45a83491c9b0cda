#include "core/reader/words.h"

#include "core/text.h"
#include "resources/strings.h"

namespace orbisol::reader {

std::u16string FrenchMonth(int month) {
  return std::u16string(Piece(StringText(kTextFrenchMonths), u'|', month - 1));
}

std::u16string FrenchWeekday(int weekday) {
  return std::u16string(Piece(StringText(kTextFrenchWeekdays), u'|', weekday - 1));
}

std::u16string YearText(int year) {
  std::u16string text = DecimalText(year);
  if (text.front() == u'-') text.front() = u'\u2212';
  return text;
}

}  // namespace orbisol::reader
