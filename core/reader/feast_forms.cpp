// Easter, and the days that depend on it.

#include "core/civil_year.h"
#include "core/easter.h"
#include "core/reader/forms.h"

namespace orbisol::reader {
namespace {

Date FeastOf(int year, int daysAfterEaster, bool isOrthodox) {
  Date date(year, 1, 1);
  if (isOrthodox) {
    date.SetPacked(OrthodoxEaster(year, 0));
  } else {
    RomanEaster(date);
  }
  date.AddDays(daysAfterEaster);
  return date;
}

void AddFeast(CAnswer& answer, int year, const Item& feast) {
  if (year < kFirstEasterYear) {
    answer.Refuse(DateRefusal::kNoEaster);
    answer.Offer(FeastOf(kFirstEasterYear, feast.value, answer.Asked().isOrthodox));
    return;
  }
  if (!IsYearShown(year)) return answer.Refuse(DateRefusal::kOutOfBounds);
  DateReading reading;
  reading.note = DateNote::kFeast;
  const Date easter = FeastOf(year, 0, answer.Asked().isOrthodox);
  reading.typed = {easter.year, easter.month, easter.day};
  reading.number = feast.value;
  answer.AddDay(FeastOf(year, feast.value, answer.Asked().isOrthodox), reading);
}

}  // namespace

bool ReadFeast(CAnswer& answer) {
  const Request& request = answer.Asked();
  const Item* const feast = request.FirstOf(WordKind::kFeast);
  if (feast == nullptr) return false;
  const std::size_t numbers = request.CountNumbers();
  if (request.items.size() != numbers + 1 || numbers > 1 || request.calendar != Calendar::kInForce ||
      request.civilYear) {
    answer.Refuse(DateRefusal::kNotADate);
    return true;
  }
  if (numbers == 0) {
    AddFeast(answer, request.selected.year, *feast);
    return true;
  }
  for (const YearChoice& choice : answer.YearsOf(*request.FirstOf(WordKind::kNumber))) {
    for (int year = choice.year - 1; year <= choice.year + 1; ++year) {
      const bool isCivil = IsYearShown(year) && year >= kFirstEasterYear && year != choice.year &&
                           CivilYearOf(FeastOf(year, feast->value, request.isOrthodox)) == choice.year;
      if (isCivil) AddFeast(answer, year, *feast);
    }
    AddFeast(answer, choice.year, *feast);
  }
  return true;
}

}  // namespace orbisol::reader
