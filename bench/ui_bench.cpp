// Benches of windows, all in one program. Each file registers its own; a row here calls it.
#include "bench/ui_bench.h"

#include <QApplication>

#include <benchmark/benchmark.h>

#include <fstream>
#include <iterator>
#include <string>

#include "content/calendar_content.h"
#include "files/calendar_file.h"

namespace orbisol {
namespace {

constexpr void (*kRegister[])() = {
    RegisterEditors, RegisterMonthView, RegisterPrintFrame, RegisterPrinting, RegisterPreferences,
};

void LoadFrance() {
  std::ifstream file(ORBISOL_LEGALS "/France.xml", std::ios::binary);
  const std::string bytes{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
  Content() = ReadCalendar(bytes).content;
}

}  // namespace
}  // namespace orbisol

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  orbisol::LoadFrance();
  for (void (*const registerSome)() : orbisol::kRegister) registerSome();
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
