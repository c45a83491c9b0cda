// What the editors accept and refuse, and how they see records as rows.

#include <gtest/gtest.h>

#include "content/day_rules.h"
#include "tests/content/rule_builder.h"
#include "ui/editors/event_fields.h"
#include "ui/editors/period_fields.h"

namespace orbisol {
namespace {

// Returns the first reason and its field.
template <class Field, class Fields>
std::pair<std::optional<Field>, std::string> FirstRefusal(const Fields& fields) {
  const std::vector<Refusal<Field>> refusals = RefusalsOf(fields);
  if (refusals.empty()) return {};
  return {refusals[0].field, ToUtf8(refusals[0].reason)};
}

TEST(EditorRowsTest, PiecesOfOneRangeAreOneRowAndTheRecordsStayAsTheyAre) {
  std::vector<DayEvent> records;
  const auto add = [&](std::u16string_view name, const DayRange& range) {
    for (const DayEvent& record :
         RecordsOf(RowOf(Rule(kFixedDate, {.month = 3, .day = 15, .name = name}), range)))
      records.push_back(record);
  };
  add(u"Ides", {-450701, -430315});      // three records
  add(u"Calendes", {-450701, -430315});  // the same days, another name
  add(u"Calendes", {-420701, -420801});  // another range of that name
  add(u"Toujours", kAlways);
  records.push_back(Rule(kFixedDate, {.month = 0, .day = 99, .from = 0, .to = 0, .name = u"Jamais"}));
  records.push_back(Rule(kFixedDate, {.from = -440315, .to = 20240101, .name = u"Bornes"}));
  records.push_back(records[1]);  // a piece whose neighbors are missing

  const std::vector<EventRow> rows = RowsOf<DayEvent>(records);
  ASSERT_EQ(rows.size(), 7U);
  EXPECT_EQ(rows[0].range, (DayRange{-450701, -430315}));
  EXPECT_EQ(rows[1].bounds.size(), 3U);
  EXPECT_EQ(rows[3].range, kAlways);
  EXPECT_EQ(rows[5].range, std::nullopt);
  EXPECT_EQ(RecordsOf<DayEvent>(rows), records);
}

TEST(EventFieldsTest, EveryRefusalIsSaidAtItsField) {
  using enum EventField;
  const EventFields good{.name = u"Fête", .month = 7, .day = 14};
  const auto with = [&](auto change) {
    EventFields fields = good;
    change(fields);
    return fields;
  };
  const std::tuple<EventFields, std::optional<EventField>, const char*> kRows[] = {
      {good, {}, ""},
      {with([](auto& f) { f.name = u""; }), kName, "Donnez un intitulé"},
      {with([](auto& f) { f.name = u" \t\u200B\u00A0\u202E"; }), kName, "Donnez un intitulé"},
      {with([](auto& f) { f.name = std::u16string(300, u'a'); }), kName,
       "254 caractères\u00A0; celui-ci en compte 300"},
      {with([](auto& f) { f.name = u"\U0001F382 \u05D9\u05D5\u05DD"; }), {}, ""},
      {with([](auto& f) { f.month = 4, f.day = 31; }), kDay, "Avril n'a que 30 jours."},
      {with([](auto& f) { f.month = 2, f.day = 29; }), {}, ""},
      {with([](auto& f) { f.type = kNthWeekday, f.month = 2, f.day = 31; }), {}, ""},
      {with([](auto& f) { f.type = kWeekdayAfter, f.day = 1; }), kDay, "au plus tôt le 2"},
      {with([](auto& f) { f.since = 20240501, f.until = 20240430; }), kUntil, "La fin précède le début."},
      {with([](auto& f) { f.since = -440301, f.until = -440315; }), {}, ""},
      {with([](auto& f) { f.since = -440315, f.until = -440301; }), kUntil, "La fin précède le début."},
  };
  for (const auto& [typed, refused, words] : kRows) {
    const auto [field, reason] = FirstRefusal<EventField>(typed);
    EXPECT_NE(reason.find(words), std::string::npos) << words << " in " << reason;
    EXPECT_EQ(field, refused) << words;
  }
  const EventFields all{.name = u"", .month = 4, .day = 31, .since = 20240501, .until = 20240430};
  std::vector<EventField> fields;
  for (const auto& refusal : RefusalsOf(all)) fields.push_back(refusal.field);
  EXPECT_EQ(fields, (std::vector{kName, kDay, kUntil})) << "one reason does not hide another";
}

// What the fields let through is what the files take, and comes back into the fields as it was.
TEST(EventFieldsTest, WhatIsNotRefusedIsAcceptedAndReadsBack) {
  int accepted = 0;
  for (int kind = 0; kind <= 7; ++kind) {
    for (int month = 1; month <= 12; ++month) {
      for (int day = 1; day <= 31; ++day) {
        EventFields fields{.name = u" Fête\n", .isPublic = day % 2 == 0, .type = DayEventType{kind}};
        if (HasMonth(fields.type)) fields.month = month;
        if (HasDate(fields.type)) fields.day = day;
        if (HasDistance(fields.type)) fields.distance = 8 * (day - 16);
        if (HasDistance(fields.type) && std::abs(fields.distance) > kMostDaysFromEaster) continue;
        if (HasWeekday(fields.type)) fields.weekday = day % 7 + 1;
        if (HasOrdinal(fields.type)) fields.weeknum = day % 5 + 1;
        if (day % 3 == 0) fields.since = day % 2 == 0 ? -440315 : 18800714;
        if (month % 3 == 0) fields.until = 19991231;
        if (!RefusalsOf(fields).empty()) {
          EXPECT_FALSE(IsAcceptableDayEvent(RowOf(fields, nullptr).record))
              << kind << ' ' << month << '/' << day;
          continue;
        }
        ++accepted;
        const EventRow row = RowOf(fields, nullptr);
        for (const DayEvent& record : RecordsOf(row)) ASSERT_TRUE(IsAcceptableDayEvent(record));
        ASSERT_EQ(RowsOf<DayEvent>(RecordsOf(row)), std::vector{row});
        fields.name = u"Fête";
        ASSERT_EQ(FieldsOf(row), fields);
      }
    }
  }
  EXPECT_GT(accepted, 2500);
}

TEST(EventFieldsTest, BoundsThatAreNoRangeStayUntilTheyAreEdited) {
  const DayEvent odd = Rule(kFixedDate, {.month = 3, .day = 15, .from = -440315, .to = 20240101});
  const EventRow row = RowsOf<DayEvent>(std::vector{odd})[0];
  EventFields fields = FieldsOf(row);
  fields.name = u"Ides";
  EXPECT_EQ(RowOf(fields, &row).bounds, row.bounds);
  fields.until = 20240101;
  EXPECT_EQ(RowOf(fields, &row).range, (DayRange{kFirstDateShown, 20240101}));
}

TEST(EventFieldsTest, ADayFillsInTheFieldsOfEveryKind) {
  for (int kind = 0; kind <= 7; ++kind) {
    EventFields fields = FieldsForDay(20241128);  // the fourth Thursday of November
    fields.name = u"x";
    fields.type = DayEventType{kind};
    if (HasDistance(fields.type)) continue;
    const EventRow row = RowOf(fields, nullptr);
    EXPECT_EQ(MatchDayEvents(RecordsOf(row), 20241128, nullptr, 0), kEventMark) << kind;
  }
}

TEST(PeriodFieldsTest, EveryRefusalIsSaidAtItsField) {
  using enum PeriodField;
  const std::tuple<PeriodFields, std::optional<PeriodField>, const char*> kRows[] = {
      {{u"", 20240706, 20240901}, {}, ""},
      {{u"", 0, 20240901}, kFrom, "Entrez une date."},
      {{u"", 20240706, 0}, kTo, "Entrez une date."},
      {{u"", 20240706, 20240705}, kTo, "La fin précède le début."},
      {{u"", 20240706, 20240706}, kTo, "au moins deux jours"},
      {{std::u16string(255, u'a'), 20240706, 20240901}, kTitle, "celui-ci en compte 255"},
      {{u"", -440301, -440315}, {}, ""},
      {{u"", -451230, -440102}, {}, ""},
      {{u"", -451231, -440102}, kFrom, "un seul jour en -45"},
      {{u"", -451230, -440101}, kTo, "un seul jour en -44"},
  };
  for (const auto& [typed, refused, words] : kRows) {
    const auto [field, reason] = FirstRefusal<PeriodField>(typed);
    EXPECT_NE(reason.find(words), std::string::npos) << words << " in " << reason;
    ASSERT_EQ(field, refused) << words;
    if (field) continue;
    const PeriodRow made = RowOf(typed);
    for (const HolidayPeriod& period : RecordsOf(made)) EXPECT_TRUE(IsAcceptablePeriod(period));
    EXPECT_EQ(FieldsOf(RowsOf<HolidayPeriod>(RecordsOf(made))[0]), typed);
  }
  // On 29 February 1300 the civil year that begins in March decides that the month has 28 days.
  const ScopedRules inForce(RulesWith(kRomanReform, {.rows = {{5000325, false}}}));
  EXPECT_EQ(FirstRefusal<PeriodField>(PeriodFields{u"", 13000201, 13000229}).first, kTo);
}

TEST(PeriodFieldsTest, PeriodsThatShareADayAreFound) {
  constexpr std::pair<PackedDate, PackedDate> kPeriods[] = {
      {20240801, 20240810}, {20240701, 20240831}, {20240831, 20240902}, {20240903, 20240904},
      {20240706, 20240707}, {-451220, -440105},   {-440105, -440110},
  };
  std::vector<PeriodRow> rows;
  for (const auto& [from, to] : kPeriods) rows.push_back(RowOf(PeriodFields{u"", from, to}));
  EXPECT_EQ(OverlapsOf(rows), (std::vector<std::size_t>{1, 4, 1, kNoOverlap, 1, 6, 5}));
}

}  // namespace
}  // namespace orbisol
