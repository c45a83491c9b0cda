// The preview of the preferences after a change, and months with texts in their cells beside the same
// without.
#include <QImage>

#include <benchmark/benchmark.h>

#include "bench/ui_bench.h"
#include "content/calendar_content.h"
#include "content/selected_date.h"
#include "tests/content/rule_builder.h"
#include "ui/month/month_window.h"
#include "ui/preferences/pref_cal_win.h"

namespace orbisol {
namespace {

constexpr QSize kPreviewSize(420, 360);
constexpr QSize kWindowSize(1280, 800);

// Changes the settings, as a control does, and paints what is then shown.
void Preview(benchmark::State& state, SampleKind kind) {
  Preferences edited;
  CPrefCalWin preview(edited);
  preview.resize(kPreviewSize);
  preview.SetSample(kind);
  QImage canvas(kPreviewSize, QImage::Format_RGB32);
  preview.render(&canvas);
  bool isOther = false;
  for ([[maybe_unused]] auto _ : state) {
    isOther = !isOther;
    edited.display.showWeekNumber = isOther;
    edited.rules.ApplyGregorianStart(isOther ? 17520914 : kRomanReform);
    preview.SettingsChanged();
    preview.render(&canvas);
  }
}

// Adds two events on each day, and a vacation in each month, for one scope.
class CBusyYear {
 public:
  CBusyYear() : m_before(Content()) {
    for (int month = 1; month <= 12; ++month) {
      for (int day = 1; day <= 28; ++day)
        for (const char16_t* const name : {u"Réunion de l'équipe au deuxième étage", u"Sport"})
          Content().dayEvents.push_back(EveryYear(month, day, name, false));
      Content().vacations.push_back(Period(Pack(2024, month, 10), Pack(2024, month, 20), u"Vacances"));
    }
  }
  ~CBusyYear() { Content() = m_before; }
  CBusyYear(const CBusyYear&) = delete;
  CBusyYear& operator=(const CBusyYear&) = delete;

 private:
  CalendarContent m_before;
};

void CellTexts(benchmark::State& state, bool areShown) {
  const CBusyYear busy;
  Selected().SetPacked(20240515);
  Display().cellTexts = areShown;
  {
    CMonthWindow window;
    window.resize(kWindowSize);
    QImage canvas(kWindowSize, QImage::Format_RGB32);
    window.render(&canvas);
    for ([[maybe_unused]] auto _ : state) window.render(&canvas);
  }
  Display().cellTexts = false;
}

}  // namespace

void RegisterPreferences() {
  using benchmark::RegisterBenchmark;
  RegisterBenchmark("Preview_Elements", Preview, SampleKind::kElements);
  RegisterBenchmark("Preview_Reform", Preview, SampleKind::kReform);
  RegisterBenchmark("CellTexts_Shown", CellTexts, true);
  RegisterBenchmark("CellTexts_Hidden", CellTexts, false);
}

}  // namespace orbisol
