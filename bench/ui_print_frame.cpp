// The print frame: opened, with its first page painted.
#include <QApplication>
#include <QCoreApplication>

#include <benchmark/benchmark.h>

#include <memory>

#include "bench/ui_bench.h"
#include "settings/display_settings.h"
#include "tests/support/memory_store.h"
#include "ui/print/print_frame.h"

namespace orbisol {
namespace {

void OpenPrintFrame(benchmark::State& state) {
  Display() = DisplaySettings();
  Display().printLayout.rect = {50, 50, 850, 650};
  CMemoryStore store("\"CalendarName\"=\"Calendar\"\n");
  for ([[maybe_unused]] auto _ : state) {
    auto frame = std::make_unique<CPrintFrame>(store, 2024, 5);
    frame->Open();
    QApplication::processEvents();
    state.PauseTiming();
    frame.reset();
    QApplication::processEvents();
    state.ResumeTiming();
  }
}

}  // namespace

void RegisterPrintFrame() {
  benchmark::RegisterBenchmark("PrintFrame_Open", OpenPrintFrame)->Unit(benchmark::kMillisecond);
}

}  // namespace orbisol
