// The month model: all months of the range with the rules of France, and a calendar with thousands of rules.
// The reading of typed dates.
#include <benchmark/benchmark.h>

#include <array>
#include <fstream>
#include <iterator>
#include <random>
#include <string>

#include "content/content_search.h"
#include "content/import_holidays.h"
#include "content/month_model.h"
#include "content/rule_dates.h"
#include "core/date_reader.h"
#include "files/calendar_file.h"

namespace orbisol {
namespace {

const CalendarContent& France() {
  static const CalendarContent content = [] {
    std::ifstream file(ORBISOL_LEGALS "/France.xml", std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(file), {}};
    CalendarContent legal = ReadCalendar(bytes).content;
    std::erase_if(legal.dayEvents, [](const DayEvent& event) { return !event.isPublic; });
    return legal;
  }();
  return content;
}

const std::array<Color, kColorCount>& Colors() {
  static const CalendarLook look;
  return look.colors;
}

// Builds all months of the years given. One item is one month.
void BuildYears(benchmark::State& state, int firstYear, int lastYear, MonthModel::Moon moon) {
  MonthModel model;
  std::int64_t months = 0;
  for ([[maybe_unused]] auto _ : state) {
    for (model.year = firstYear; model.year <= lastYear; ++model.year) {
      for (model.month = 1; model.month <= 12; ++model.month) {
        model.Build(France(), Colors(), moon);
        benchmark::DoNotOptimize(model.cells[8].marks);
        ++months;
      }
    }
  }
  state.SetItemsProcessed(months);
}

void AllMonths_WithMoon(benchmark::State& state) { BuildYears(state, -3999, 3999, MonthModel::kWithMoon); }
BENCHMARK(AllMonths_WithMoon)->Unit(benchmark::kMillisecond);

void YearsOfTheEra_WithoutMoon(benchmark::State& state) {
  BuildYears(state, 1, 3999, MonthModel::kWithoutMoon);
}
BENCHMARK(YearsOfTheEra_WithoutMoon)->Unit(benchmark::kMillisecond);

// Returns a calendar with rules of all kinds, and with periods all over a century.
CalendarContent CrowdedCalendar(int rules, int periods) {
  std::mt19937 random(1792);
  const auto any = [&random](int low, int high) {
    return std::uniform_int_distribution<int>(low, high)(random);
  };
  CalendarContent content;
  for (int i = 0; i < rules; ++i) {
    DayEvent event;
    event.type = static_cast<DayEventType>(any(0, 7));
    event.isPublic = any(0, 1) == 1;
    event.month = any(1, 12);
    event.day = any(2, 28);
    event.weekday = any(1, 7);
    event.weeknum = event.type == DayEventType::kNthWeekday ? any(1, 5) : 1;
    event.ymdFrom = kAlwaysFrom;
    event.ymdTo = kAlwaysTo;
    event.name.Set(u"Événement de la bibliothèque municipale");
    content.dayEvents.push_back(event);
  }
  for (int i = 0; i < periods; ++i) {
    const int year = any(1950, 2050);
    content.vacations.push_back(
        {Pack(year, any(1, 6), 1), Pack(year, any(7, 12), 28), std::u16string_view(u"Vacances")});
  }
  return content;
}

void CrowdedMonth(benchmark::State& state) {
  const CalendarContent content =
      CrowdedCalendar(static_cast<int>(state.range(0)), static_cast<int>(state.range(0)) / 10);
  MonthModel model;
  model.year = 2024;
  model.month = 5;
  for ([[maybe_unused]] auto _ : state) {
    model.Build(content, Colors(), MonthModel::kWithMoon);
    benchmark::DoNotOptimize(model.cells[8].marks);
  }
}
BENCHMARK(CrowdedMonth)->Arg(2500)->Arg(5000)->Arg(10000)->Unit(benchmark::kMillisecond);

// Imports a calendar half of whose rules are there already.
void ImportRules(benchmark::State& state) {
  const auto number = [](int i) { return std::to_string(i); };
  CalendarContent mine;
  CalendarContent theirs;
  for (int i = 0; i < static_cast<int>(state.range(0)); ++i) {
    DayEvent event;
    event.isPublic = true;
    event.ymdFrom = kAlwaysFrom;
    event.ymdTo = kAlwaysTo;
    event.name.Set(FromUtf8("Anniversaire " + number(i)));
    mine.dayEvents.push_back(event);
    if (i % 2 != 0) event.name.Set(FromUtf8("Fête " + number(i)));
    theirs.dayEvents.push_back(event);
  }
  for ([[maybe_unused]] auto _ : state) {
    CalendarContent content = mine;
    ImportHolidays(content, theirs, false);
    benchmark::DoNotOptimize(content.dayEvents.size());
  }
}
BENCHMARK(ImportRules)->Arg(10000)->Arg(40000)->Unit(benchmark::kMillisecond);

// Reads calendar files of about ten and twenty million bytes.
void ReadLargeFile(benchmark::State& state) {
  CalendarFile calendar;
  calendar.content = CrowdedCalendar(static_cast<int>(state.range(0)), 0);
  const std::string bytes = WriteCalendar(calendar, CalendarForm::kUser);
  for ([[maybe_unused]] auto _ : state)
    benchmark::DoNotOptimize(ReadCalendar(bytes).content.dayEvents.size());
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(bytes.size()));
}
BENCHMARK(ReadLargeFile)->Arg(45000)->Arg(90000)->Unit(benchmark::kMillisecond);

// Finds a word that several rules and a period hold, in all years.
void SearchAllYears(benchmark::State& state) {
  CalendarContent content = France();
  content.vacations.push_back({20240706, 20240831, NameText(u"Fête de l'été")});
  for ([[maybe_unused]] auto _ : state) {
    const CContentSearch search(content, u"fete");
    std::size_t hits = 0;
    for (int year = search.FirstYear(); year <= search.LastYear(); ++year)
      hits += search.HitsInYear(year).size();
    benchmark::DoNotOptimize(hits);
  }
}
BENCHMARK(SearchAllYears)->Unit(benchmark::kMillisecond);

// Dates a rule of each kind in all years. One item is one rule in one year.
void RuleDatesOfAYear(benchmark::State& state) {
  DayEvent rules[8];
  for (int kind = 0; kind < 8; ++kind)
    rules[kind] = {DayEventType{kind}, true, 5, 8, 1, 1, kAlwaysFrom, kAlwaysTo, NameText(u"x")};
  std::vector<PackedDate> days;
  std::int64_t items = 0;
  for ([[maybe_unused]] auto _ : state) {
    for (int year = -3999; year <= 3999; ++year) {
      days.clear();
      for (const DayEvent& rule : rules) AppendRuleDates(rule, year, days);
      benchmark::DoNotOptimize(days.data());
      items += 8;
    }
  }
  state.SetItemsProcessed(items);
}
BENCHMARK(RuleDatesOfAYear)->Unit(benchmark::kMillisecond);

// Reads typed dates of all forms, and says how the best reading was understood. One item is one text.
void ReadTypedDates(benchmark::State& state) {
  constexpr std::u16string_view kTexts[] = {u"14 juillet 1789",
                                            u"mardi 14 juillet 1789",
                                            u"15/3/-44",
                                            u"18 brumaire an VIII",
                                            u"1582-10-10",
                                            u"44",
                                            u"15 mars 44 av. J.-C.",
                                            u"Pâques 2024",
                                            u"2024-W20-3",
                                            u"-44",
                                            u"2299161",
                                            u"dans 3 semaines",
                                            u"14 juilet 1789",
                                            u"ides de mars 2024",
                                            u"31 avril 2024",
                                            u"24/3/15",
                                            u"25 octobre 1917 julien",
                                            u"140789",
                                            u"14/7/1789",
                                            u"l'an mil huit cent douze, le vingt-trois mars"};
  for ([[maybe_unused]] auto _ : state) {
    for (const std::u16string_view text : kTexts) {
      const DateReadings read = ReadDates(text, 20240515);
      if (!read.readings.empty())
        benchmark::DoNotOptimize(ReadingText(read.readings[0]) + ReadingNote(read.readings[0]));
    }
  }
  state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(std::size(kTexts)));
}
BENCHMARK(ReadTypedDates);

}  // namespace
}  // namespace orbisol

BENCHMARK_MAIN();
