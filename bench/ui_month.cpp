// The month view beside the calendar of the toolkit: whole repaints, the next month, moving the selection.
#include <QApplication>
#include <QCalendarWidget>
#include <QImage>
#include <QKeyEvent>

#include <benchmark/benchmark.h>

#include <string>

#include "bench/ui_bench.h"
#include "content/selected_date.h"
#include "settings/display_settings.h"
#include "ui/month/month_window.h"
#include "ui/painting/month_fonts.h"

namespace orbisol {
namespace {

constexpr PackedDate kStart = 20240515;
constexpr int kMonths = 240;  // length of the walk through the months, which is then repeated

// Our month view as at the first start: May 2024 with the days of France, the picture and the week numbers.
struct OurCalendar {
  CMonthWindow window;

  explicit OurCalendar(const QSize& size) {
    Selected().SetPacked(kStart);
    Display() = DisplaySettings();
    Display().showWeekNumber = true;
    window.SettingsChanged();
    window.resize(size);
  }
};

// The toolkit's calendar: the same month with digits as large as ours, a grid and week numbers, and without
// its navigation bar.
struct PeerCalendar {
  QCalendarWidget window;

  explicit PeerCalendar(const QSize& size) {
    const MonthLayout ours(size.width(), size.height(), true, true);
    QFont font = window.font();
    font.setPixelSize(MakeMonthFonts(ours, DisplaySettings(), font).upright.pixelSize());
    window.setFont(font);
    window.setNavigationBarVisible(false);
    window.setGridVisible(true);
    window.setFirstDayOfWeek(Qt::Monday);
    window.setSelectedDate(QDate(2024, 5, 15));
    window.setMinimumSize(1, 1);  // the large digits must not make it wider than ours
    window.resize(size);
  }
};

// Returns an image to paint on, in the format of the toolkit's own windows.
QImage Canvas(const QSize& size) {
  QImage canvas(size, QImage::Format_RGB32);
  canvas.fill(Qt::white);
  return canvas;
}

template <class Calendar>
void Repaint(benchmark::State& state, QSize size) {
  Calendar calendar(size);
  QImage canvas = Canvas(size);
  calendar.window.render(&canvas);  // computes the layout, stretches the picture and loads the font
  if (calendar.window.size() != size) {
    state.SkipWithError("not the size asked for");
    return;
  }
  for ([[maybe_unused]] auto _ : state) calendar.window.render(&canvas);
}

void NextMonth_Orbisol(benchmark::State& state) {
  constexpr QSize kSize(900, 450);
  OurCalendar calendar(kSize);
  QImage canvas = Canvas(kSize);
  calendar.window.render(&canvas);
  int months = 0;
  for ([[maybe_unused]] auto _ : state) {
    if (++months % kMonths == 0) Selected().SetPacked(kStart);
    StepMonths(Selected(), 1);
    calendar.window.Refresh();
    calendar.window.render(&canvas);
  }
}

void NextMonth_QCalendarWidget(benchmark::State& state) {
  constexpr QSize kSize(900, 450);
  PeerCalendar calendar(kSize);
  QImage canvas = Canvas(kSize);
  calendar.window.render(&canvas);
  int months = 0;
  for ([[maybe_unused]] auto _ : state) {
    if (++months % kMonths == 0) calendar.window.setCurrentPage(2024, 5);
    calendar.window.showNextMonth();
    calendar.window.render(&canvas);
  }
}

void Press(QWidget& window, int key) {
  QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
  QApplication::sendEvent(&window, &event);
}

// Moves the selection in a window that is shown, so that its own paint events decide how much is repainted.
void Selection_Orbisol(benchmark::State& state) {
  OurCalendar calendar({900, 450});
  calendar.window.show();
  QApplication::processEvents();
  bool isRight = true;
  for ([[maybe_unused]] auto _ : state) {
    Press(calendar.window, isRight ? Qt::Key_Right : Qt::Key_Left);
    isRight = !isRight;
    QApplication::processEvents();
  }
}

void Selection_WholeRepaint(benchmark::State& state) {
  OurCalendar calendar({900, 450});
  calendar.window.show();
  QApplication::processEvents();
  for ([[maybe_unused]] auto _ : state) {
    calendar.window.update();
    QApplication::processEvents();
  }
}

}  // namespace

void RegisterMonthView() {
  using benchmark::RegisterBenchmark;
  for (const QSize size : {QSize(900, 450), QSize(1920, 1080), QSize(3840, 2160)}) {
    const std::string group = "Repaint" + std::to_string(size.width()) + "x" + std::to_string(size.height());
    RegisterBenchmark((group + "_Orbisol").c_str(), Repaint<OurCalendar>, size);
    RegisterBenchmark((group + "_QCalendarWidget").c_str(), Repaint<PeerCalendar>, size);
  }
  RegisterBenchmark("NextMonth_Orbisol", NextMonth_Orbisol);
  RegisterBenchmark("NextMonth_QCalendarWidget", NextMonth_QCalendarWidget);
  RegisterBenchmark("Selection_Orbisol", Selection_Orbisol);
  RegisterBenchmark("Selection_WholeRepaint", Selection_WholeRepaint);
}

}  // namespace orbisol
