#include "files/calendar_events.h"

#include "files/elements.h"

namespace orbisol {

namespace {

std::u16string_view Raw(std::u16string_view record, std::u16string_view tag) {
  std::ptrdiff_t position = 0;
  return FindElement(record, tag, position);
}

// Returns the number in an element. It is not unescaped, because digits are never escaped.
int Number(std::u16string_view record, std::u16string_view tag) { return ParseDecimal(Raw(record, tag)); }

// Returns the bound that a year stands for; 0 stands for none. On purpose: before the era the sum gives a
// date of the year that follows, as it did in the releases that wrote such rules.
PackedDate BoundOfYear(int year, int monthDay, PackedDate ifNone) {
  return year == 0 ? ifNone : Saturate(std::int64_t{year} * 10000 + monthDay);
}

DayEvent ReadEvent(std::u16string_view record) {
  DayEvent event;
  event.type = static_cast<DayEventType>(Number(record, u"type"));
  event.isPublic = Raw(record, u"public") == u"1";
  event.month = Number(record, u"month");
  event.day = Number(record, u"day");
  event.weekday = Number(record, u"weekday");
  event.weeknum = Number(record, u"weeknum");
  if (HasYearBounds(record)) {
    event.ymdFrom = BoundOfYear(Number(record, u"yFrom"), kFirstOfJanuary, kAlwaysFrom);
    event.ymdTo = BoundOfYear(Number(record, u"yTo"), kLastOfDecember, kAlwaysTo);
  } else {
    event.ymdFrom = Number(record, u"ymdFrom");
    event.ymdTo = Number(record, u"ymdTo");
  }
  event.name.Set(Unescape(Raw(record, u"name")));
  return event;
}

HolidayPeriod ReadPeriod(std::u16string_view record) {
  HolidayPeriod period;
  period.ymdFrom = Number(record, u"ymdFrom");
  period.ymdTo = Number(record, u"ymdTo");
  period.title.Set(Unescape(Raw(record, u"title")));
  return period;
}

// Calls `use` with each element `tag`, up to the first that is missing or empty.
template <typename Use>
void ForEachElement(std::u16string_view block, std::u16string_view tag, Use use) {
  std::ptrdiff_t position = 0;
  for (;;) {
    const std::u16string_view content = FindElement(block, tag, position);
    if (position == kNoElement) return;
    use(content);
  }
}

void AppendField(std::u16string& out, std::u16string_view tag, std::u16string_view value) {
  out += u"\t\t";
  out += MakeElement(value, tag);
}

void AppendNumber(std::u16string& out, std::u16string_view tag, int number) {
  AppendField(out, tag, DecimalText(number));
}

void AppendEvent(std::u16string& out, const DayEvent& event) {
  out += u"\t<event>\r\n";
  AppendNumber(out, u"type", static_cast<int>(event.type));
  AppendNumber(out, u"public", event.isPublic ? 1 : 0);
  AppendNumber(out, u"month", event.month);
  AppendNumber(out, u"day", event.day);
  AppendNumber(out, u"weekday", event.weekday);
  AppendNumber(out, u"weeknum", event.weeknum);
  AppendNumber(out, u"ymdFrom", event.ymdFrom);
  AppendNumber(out, u"ymdTo", event.ymdTo);
  AppendField(out, u"name", event.name.View());
  out += u"\t</event>\r\n";
}

void AppendPeriod(std::u16string& out, const HolidayPeriod& period) {
  out += u"\t<period>\r\n";
  AppendNumber(out, u"ymdFrom", period.ymdFrom);
  AppendNumber(out, u"ymdTo", period.ymdTo);
  AppendField(out, u"title", period.title.View());
  out += u"\t</period>\r\n";
}

}  // namespace

CalendarContent ReadCalendarEvents(std::u16string_view text) {
  CalendarContent content;
  ForEachElement(Raw(text, u"dayEvents"), u"event", [&](std::u16string_view record) {
    const DayEvent event = ReadEvent(record);
    if (IsAcceptableDayEvent(event)) content.dayEvents.push_back(event);
  });
  ForEachElement(Raw(text, u"holidays"), u"period", [&](std::u16string_view record) {
    const HolidayPeriod period = ReadPeriod(record);
    if (IsAcceptablePeriod(period)) content.vacations.push_back(period);
  });
  return content;
}

bool HasYearBounds(std::u16string_view event) {
  return FindTag(event, u"yFrom", TagKind::kOpening, 0) != std::u16string_view::npos;
}

void AppendCalendarEvents(std::u16string& out, const CalendarContent& content) {
  constexpr std::size_t kUnitsOfRecord = 256;  // usual length of a rule's text
  out.reserve(out.size() + kUnitsOfRecord * (1 + content.dayEvents.size() + content.vacations.size()));
  if (!content.dayEvents.empty()) {
    out += u"<dayEvents>\r\n";
    for (const DayEvent& event : content.dayEvents) AppendEvent(out, event);
    out += u"</dayEvents>\r\n";
  }
  if (!content.vacations.empty()) {
    out += u"<holidays>\r\n";
    for (const HolidayPeriod& period : content.vacations) AppendPeriod(out, period);
    out += u"</holidays>\r\n";
  }
}

}  // namespace orbisol
