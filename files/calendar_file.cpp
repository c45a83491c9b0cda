#include "files/calendar_file.h"

#include <algorithm>
#include <vector>

#include "files/calendar_events.h"
#include "files/calendar_params.h"
#include "files/elements.h"

namespace orbisol {

namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
constexpr std::u16string_view kBlanks = u" \t\r\n";
constexpr std::size_t kNotFound = std::u16string_view::npos;

std::string_view WithoutMark(std::string_view bytes) {
  return bytes.starts_with(kByteOrderMark) ? bytes.substr(kByteOrderMark.size()) : bytes;
}

CalendarFile ReadText(std::u16string_view text) {
  CalendarFile calendar;
  std::ptrdiff_t position = 0;
  calendar.info = GetElement(text, u"info", position);
  position = 0;
  ReadCalendarParams(FindElement(text, u"CalendarParams", position), calendar.look, calendar.rules);

  // Which dates exist depends on the calendar's own rules, wherever in the file they stand.
  const ScopedRules inForce(calendar.rules);
  calendar.content = ReadCalendarEvents(text);
  return calendar;
}

std::u16string CalendarText(const CalendarFile& calendar, CalendarForm form) {
  std::u16string out = u"<?xml version=\"1.0\" encoding=\"UTF-8\"?>\r\n";
  if (!calendar.info.empty()) out += MakeElement(calendar.info, u"info");
  out += u"<CalendarParams>\r\n";
  if (form == CalendarForm::kUser) out += CalendarParamsText(calendar.look, calendar.rules);
  out += u"</CalendarParams>\r\n<CalendarEvents>\r\n";
  AppendCalendarEvents(out, calendar.content);
  out += u"</CalendarEvents>\r\n";
  return out;
}

std::u16string_view Trimmed(std::u16string_view text) {
  const std::size_t first = text.find_first_not_of(kBlanks);
  if (first == kNotFound) return {};
  return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

// Whether each element of the block `read` has its like in `written`, in any order among elements of other
// names, and no text stands beside the elements. An empty element says nothing.
bool SurvivesRewrite(std::u16string_view blockTag, std::u16string_view read, std::u16string_view written) {
  struct Met {
    std::u16string_view tag;
    std::ptrdiff_t position;  // in `written`, behind the last of them
  };
  std::vector<Met> mets;
  const bool isOlder = blockTag == u"event" && HasYearBounds(read);  // its years are written as dates
  for (std::u16string_view rest = Trimmed(read); !rest.empty(); rest = Trimmed(rest)) {
    const std::size_t tagEnd = rest.find(u'>');
    if (rest[0] != u'<' || tagEnd == kNotFound) return false;
    const std::u16string_view tag = rest.substr(1, tagEnd - 1);
    const std::size_t closing = FindTag(rest, tag, TagKind::kClosing, tagEnd + 1);
    if (closing == kNotFound) return false;
    const std::u16string_view content = rest.substr(tagEnd + 1, closing - tagEnd - 1);
    rest.remove_prefix(closing + tag.size() + 3);
    const std::u16string_view value = Trimmed(content);
    if (value.empty()) continue;

    auto met = std::find_if(mets.begin(), mets.end(), [&](const Met& known) { return known.tag == tag; });
    const bool isFirst = met == mets.end();
    if (isFirst) met = mets.insert(met, {tag, 0});
    const bool isYear = isOlder && isFirst && (tag == u"yFrom" || tag == u"yTo");
    if (isYear && DecimalText(ParseDecimal(value)) == value) continue;
    const std::u16string_view like = FindElement(written, tag, met->position);
    if (met->position == kNoElement) return false;
    const bool isBlock = value.find(u'<') != kNotFound;
    if (isBlock ? !SurvivesRewrite(tag, value, like) : Unescape(value) != Unescape(Trimmed(like)))
      return false;
  }
  return true;
}

}  // namespace

CalendarFile ReadCalendar(std::string_view bytes) { return ReadText(FromUtf8(WithoutMark(bytes))); }

std::string WriteCalendar(const CalendarFile& calendar, CalendarForm form) {
  return ToUtf8(CalendarText(calendar, form));
}

bool WouldLoseData(std::string_view bytes, CalendarForm form) {
  const std::u16string text = FromUtf8(WithoutMark(bytes));
  const bool mayBeMalformed = text.find(u'\uFFFD') != kNotFound;
  if (mayBeMalformed && ToUtf8(text) != WithoutMark(bytes)) return true;

  std::u16string_view elements = Trimmed(text);
  if (elements.starts_with(u"<?xml "))
    if (const std::size_t end = elements.find(u"?>"); end != kNotFound) elements.remove_prefix(end + 2);
  return !SurvivesRewrite({}, elements, CalendarText(ReadText(text), form));
}

}  // namespace orbisol
