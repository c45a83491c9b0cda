// The list of 5,000 events: opened with its first paint, filtered, sorted.
#include <QApplication>
#include <QLineEdit>

#include <benchmark/benchmark.h>

#include <memory>
#include <string>

#include "bench/ui_bench.h"
#include "content/selected_date.h"
#include "settings/display_settings.h"
#include "tests/support/memory_files.h"
#include "tests/support/memory_store.h"
#include "ui/editors/events_dialog.h"
#include "ui/editors/row_list.h"
#include "ui/toolkit/plain_text.h"

namespace orbisol {
namespace {

constexpr int kRules = 5000;
constexpr int kYear = 2024;

// Rules of every kind, none of which has the name of another.
CalendarContent ManyRules() {
  CalendarContent content;
  for (int i = 0; i < kRules; ++i) {
    EventFields fields;
    fields.name = u"Événement n° " + DecimalText(i * 7919 % kRules);
    fields.isPublic = i % 3 == 0;
    fields.type = DayEventType{i % 8};
    fields.month = i % 12 + 1;
    fields.day = i % 27 + 2;
    fields.distance = i % 199 - 99;
    fields.weekday = i % 7 + 1;
    fields.weeknum = i % 5 + 1;
    fields.since = i % 2 == 0 ? 0 : 19000101;
    for (const DayEvent& record : RecordsOf(RowOf(fields, nullptr))) content.dayEvents.push_back(record);
  }
  return content;
}

struct Editor {
  CMemoryStore store{"\"CalendarName\"=\"Calendar\"\n"};
  CMemoryFiles files;
  CCalendarStore calendars{files, kMemoryFolders};
  CalendarContent content = ManyRules();
  std::unique_ptr<CEventsDialog> dialog;

  void Open() {
    dialog = std::make_unique<CEventsDialog>(EditorServices{{store, calendars}, {}}, content, 0, kYear);
    Paint();
  }
  void Paint() {
    dialog->show();
    QApplication::processEvents();
    benchmark::DoNotOptimize(dialog->grab());
  }
};

void OpenList(benchmark::State& state) {
  Editor editor;
  for ([[maybe_unused]] auto _ : state) {
    editor.Open();
    state.PauseTiming();
    editor.dialog.reset();
    state.ResumeTiming();
  }
}

void FilterList(benchmark::State& state) {
  constexpr const char* kTexts[] = {"99", "", "novembre", "evenement n 4"};
  Editor editor;
  editor.Open();
  auto* const filter = editor.dialog->findChild<QLineEdit*>(QStringLiteral("filter"));
  std::size_t i = 0;
  for ([[maybe_unused]] auto _ : state) {
    filter->setText(QString::fromUtf8(kTexts[i++ % std::size(kTexts)]));
    editor.Paint();
  }
}

void SortList(benchmark::State& state) {
  Editor editor;
  editor.Open();
  auto* const list = editor.dialog->findChild<CRowList*>();
  int column = 0;
  for ([[maybe_unused]] auto _ : state) {
    list->sortByColumn(column++ % CEventList::kColumns, Qt::DescendingOrder);
    editor.Paint();
  }
}

}  // namespace

void RegisterEditors() {
  benchmark::RegisterBenchmark("EventList_Open", OpenList)->Unit(benchmark::kMillisecond);
  benchmark::RegisterBenchmark("EventList_Filter", FilterList)->Unit(benchmark::kMillisecond);
  benchmark::RegisterBenchmark("EventList_Sort", SortList)->Unit(benchmark::kMillisecond);
}

}  // namespace orbisol
