#include "files/calendar_file.h"

#include <algorithm>
#include <optional>
#include <vector>

#include "files/calendar_events.h"
#include "files/calendar_params.h"
#include "files/elements.h"

namespace orbisol {

namespace {

constexpr std::u16string_view kBlanks = u" \t\r\n";
constexpr std::size_t kNotFound = std::u16string_view::npos;

std::string_view WithoutMark(std::string_view bytes) {
  return bytes.starts_with(kUtf8Mark) ? bytes.substr(kUtf8Mark.size()) : bytes;
}

CalendarFile ReadText(std::u16string_view text) {
  CalendarFile calendar;
  std::ptrdiff_t position = 0;
  calendar.info = GetElement(text, u"info", position);
  position = 0;
  ReadCalendarParams(FindElement(text, u"CalendarParams", position), calendar.look, calendar.rules);

  // The calendar's own rules decide which dates exist, wherever in the file they stand.
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

// Returns the text after the line in which a file calls itself XML.
std::u16string_view WithoutHeader(std::u16string_view text) {
  text = Trimmed(text);
  if (text.starts_with(u"<?xml "))
    if (const std::size_t end = text.find(u"?>"); end != kNotFound) text.remove_prefix(end + 2);
  return text;
}

// Element of a block: its tag and its content, not unescaped.
struct Element {
  std::u16string_view tag;
  std::u16string_view content;
};

// Cuts the next element off a block. Returns nothing if text stands beside the elements, or if an element is
// not closed.
std::optional<Element> TakeElement(std::u16string_view& block) {
  const std::size_t tagEnd = block.find(u'>');
  if (block.empty() || block[0] != u'<' || tagEnd == kNotFound) return {};
  const std::u16string_view tag = block.substr(1, tagEnd - 1);
  const std::size_t closing = FindTag(block, tag, TagKind::kClosing, tagEnd + 1);
  if (closing == kNotFound) return {};
  const Element element{tag, Trimmed(block.substr(tagEnd + 1, closing - tagEnd - 1))};
  block = Trimmed(block.substr(closing + tag.size() + 3));
  return element;
}

// Returns whether each element of the block `read` has its equal in the same block `written`, in any order
// among elements of other names, and no text stands beside the elements. Empty elements are not compared.
bool SurvivesRewrite(std::u16string_view blockTag, std::u16string_view read, std::u16string_view written) {
  struct Rest {
    std::u16string_view tag;
    std::u16string_view written;  // rest of `written` after the last element of that name
  };
  std::vector<Rest> rests;
  const bool isOlder = blockTag == u"event" && HasYearBounds(read);  // its years come back as dates
  for (read = Trimmed(read); !read.empty();) {
    const std::optional<Element> element = TakeElement(read);
    if (!element) return false;
    const auto& [tag, value] = *element;
    if (value.empty()) continue;

    auto rest = std::find_if(rests.begin(), rests.end(),
                             [name = tag](const Rest& known) { return known.tag == name; });
    const bool isFirst = rest == rests.end();
    if (isFirst) rest = rests.insert(rest, {tag, Trimmed(written)});
    const bool isYear = isOlder && isFirst && (tag == u"yFrom" || tag == u"yTo");
    if (isYear && DecimalText(ParseDecimal(value)) == value) continue;
    std::optional<Element> like;
    do {
      like = TakeElement(rest->written);
    } while (like && like->tag != tag);
    if (!like) return false;
    const bool isBlock = value.find(u'<') != kNotFound;
    if (isBlock ? !SurvivesRewrite(tag, value, like->content) : Unescape(value) != Unescape(like->content))
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

  const std::u16string written = CalendarText(ReadText(text), form);
  return !SurvivesRewrite({}, WithoutHeader(text), WithoutHeader(written));
}

}  // namespace orbisol
