// PDF files: the twelve months of a year, and a hundred years of a page each.
#include <QFileInfo>
#include <QPageLayout>
#include <QPageSize>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>

#include "bench/ui_bench.h"
#include "content/calendar_content.h"
#include "resources/command_ids.h"
#include "ui/print/print_run.h"

namespace orbisol {
namespace {

bool GoOn(int, int) { return true; }

// A printed job with the days of France, and a folder for its file.
struct PdfJob {
  QTemporaryDir folder;
  QString path = folder.filePath(QStringLiteral("pages.pdf"));
  QPageLayout layout{QPageSize(QPageSize::A4), QPageLayout::Landscape, QMarginsF(10, 10, 10, 10),
                     QPageLayout::Millimeter};
  CPagePainter pages;

  PdfJob(int format, int firstYear, int lastYear)
      : pages(JobOf(format, firstYear, lastYear), SourceOfBench()) {}

  // Returns whether the file was written.
  bool Write(const PageProgress& progress = GoOn) const {
    return WritePdf(pages, layout, path, AllPages(pages.Job()), progress) == RunResult::kDone;
  }

 private:
  static PrintJob JobOf(int format, int firstYear, int lastYear) {
    PrintJob job(firstYear, 1);
    job.ChooseFormat(format);
    job.ChoosePeriod(kCmdPeriodYear);
    return job.WithYears(firstYear, lastYear);
  }

  static PrintSource SourceOfBench() {
    return {Content(), DisplaySettings(), Rules(), QImage(), QImage(), QFont()};
  }
};

void WriteAgain(benchmark::State& state, const PdfJob& job) {
  bool isWritten = job.Write();  // the first document of a process loads the fonts
  for ([[maybe_unused]] auto _ : state) isWritten = job.Write() && isWritten;
  if (!isWritten) state.SkipWithError("the file was not written");
}

void PdfOfAYear(benchmark::State& state) { WriteAgain(state, PdfJob(kCmdFormatTable, 2024, 2024)); }

// Reports a number that is no time; the script reads it as nanoseconds an item.
void Report(benchmark::State& state, double number) {
  state.counters["items_per_second"] = 1e9 / std::max(number, 1.0);
}

void PdfOfAYearBytes(benchmark::State& state) {
  const PdfJob job(kCmdFormatTable, 2024, 2024);
  for ([[maybe_unused]] auto _ : state)
    if (!job.Write()) state.SkipWithError("the file was not written");
  Report(state, static_cast<double>(QFileInfo(job.path).size()));
}

void YearsToPdf(benchmark::State& state) {
  WriteAgain(state, PdfJob(kCmdFormatYear, 1900, 1899 + static_cast<int>(state.range(0))));
}

double ResidentBytes() {
  long long pages = 0;
  std::FILE* const file = std::fopen("/proc/self/statm", "r");
  if (file != nullptr && std::fscanf(file, "%*d %lld", &pages) != 1) pages = 0;
  if (file != nullptr) std::fclose(file);
  return static_cast<double>(pages) * static_cast<double>(sysconf(_SC_PAGESIZE));
}

// Measures by how much the memory grows from page 25 to page 100.
void YearsToPdfGrowth(benchmark::State& state) {
  const PdfJob job(kCmdFormatYear, 1900, 1999);
  double growth = 0;
  for ([[maybe_unused]] auto _ : state) {
    double early = 0;
    job.Write([&](int done, int count) {
      if (done == 25) early = ResidentBytes();
      if (done == count) growth = std::max(growth, ResidentBytes() - early);
      return true;
    });
  }
  Report(state, growth);
}

}  // namespace

void RegisterPrinting() {
  using benchmark::RegisterBenchmark;
  RegisterBenchmark("PdfOfAYear_Orbisol", PdfOfAYear);
  RegisterBenchmark("PdfOfAYearBytes", PdfOfAYearBytes)->Iterations(1);
  RegisterBenchmark("YearsToPdf", YearsToPdf)->Arg(25)->Arg(100);
  RegisterBenchmark("YearsToPdfGrowth", YearsToPdfGrowth)->Iterations(1);
}

}  // namespace orbisol
