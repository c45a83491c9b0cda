#include "core/date_reader.h"

#include "core/reader/forms.h"
#include "core/text.h"
#include "resources/strings.h"

namespace orbisol {
namespace {

using reader::CAnswer;
using reader::Item;
using reader::Request;
using reader::WordKind;

constexpr bool (*kForms[])(CAnswer&) = {
    reader::ReadDayNumber,  reader::ReadRelative, reader::ReadFeast,     reader::ReadRomanDay,
    reader::ReadRepublican, reader::ReadWeek,     reader::ReadMonthName, reader::ReadNumbers,
};

bool IsEmpty(const Request& request) {
  return request.items.empty() && request.weekday == 0 && request.decadeDay == 0 && !request.HasYearRemark();
}

// Words that only one form knows what to do with.
bool HasStrayWords(const Request& request) {
  const bool isRepublican = request.Has(WordKind::kRepublicanMonth);
  return (request.isOrthodox && !request.Has(WordKind::kFeast)) || (request.decadeDay != 0 && !isRepublican);
}

DateReadings ReadRequest(Request& request) {
  reader::JoinDoubleYear(request);
  CAnswer answer(request);
  if (IsEmpty(request)) {
    answer.Refuse(DateRefusal::kEmpty);
    return answer.Take();
  }
  if (request.isContradictory) {
    answer.Refuse(DateRefusal::kContradiction);
    return answer.Take();
  }
  if (HasStrayWords(request)) return answer.Take();
  for (const auto& read : kForms)
    if (read(answer)) break;
  return answer.Take();
}

// Returns the text from the first unit whose folding reaches `begin`; folding may lengthen it.
std::u16string_view Unfolded(std::u16string_view text, std::size_t begin, std::size_t end) {
  const auto place = [&](std::size_t inFolded) {
    std::size_t i = 0;
    while (i < text.size() && Folded(text.substr(0, i)).size() < inFolded) ++i;
    return i;
  };
  const std::size_t first = place(begin);
  return text.substr(first, place(end) - first);
}

// Offers what the text means when its unknown words are spelled like their neighbors in the lexicon, or left
// out where they have none.
void OfferCorrected(const Request& request, std::u16string_view folded, PackedDate selected,
                    DateReadings& result) {
  std::u16string corrected;
  std::size_t at = 0;
  for (const Item& item : request.items) {
    if (item.kind != WordKind::kUnknown) continue;
    corrected += folded.substr(at, item.begin - at);
    corrected += reader::NearestWord(folded.substr(item.begin, item.end - item.begin));
    corrected += u' ';
    at = item.end;
  }
  corrected += folded.substr(at);
  Request again(corrected, selected);
  if (!again.Has(WordKind::kUnknown)) result.offers = ReadRequest(again).readings;
}

}  // namespace

DateReadings ReadDates(std::u16string_view text, PackedDate selected) {
  const std::u16string_view looked = CutText(text, kMostTypedUnits);
  const std::u16string folded = Folded(looked);
  Request request(folded, selected);
  const Item* const unknown = request.FirstOf(WordKind::kUnknown);
  if (unknown == nullptr) return ReadRequest(request);
  CAnswer answer(request);
  answer.Refuse(DateRefusal::kUnknownWord, {Unfolded(looked, unknown->begin, unknown->end)});
  DateReadings result;
  result.refusal = DateRefusal::kUnknownWord;
  result.reason = answer.Take().reason;
  OfferCorrected(request, folded, selected, result);
  return result;
}

}  // namespace orbisol
