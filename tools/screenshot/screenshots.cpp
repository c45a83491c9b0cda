// Pictures of the windows for people to look at: one PNG a case, at the scale of QT_SCALE_FACTOR, on a day
// that never changes.
//
//   QT_QPA_PLATFORM=offscreen QT_SCALE_FACTOR=2 orbisol_screenshots build/screenshots main_window fields
//   QT_QPA_PLATFORM=offscreen orbisol_screenshots build/screenshots/dark theme=dark
//
// Without the name of a set all are taken; "theme=dark" and "theme=contrast" give them the palette of such a
// desktop.

#include <QApplication>
#include <QDir>

#include <algorithm>
#include <cstdio>

#include "tests/support/fakes.h"
#include "tests/support/themes.h"
#include "tools/screenshot/pictures.h"
#include "ui/toolkit/french_toolkit.h"
#include "ui/toolkit/program_style.h"

namespace orbisol {
namespace {

constexpr struct {
  const char* name;
  void (*take)(CPictureFolder& folder);
} kSets[] = {
    {"first_window", TakeFirstWindow},
    {"main_window", TakeMainWindow},
    {"months", TakeMonths},
    {"fields", TakeFields},
    {"find", TakeFind},
    {"calendars", TakeCalendars},
    {"print_frame", TakePrintFrame},
    {"preferences", TakePreferences},
    {"help", TakeHelp},
    {"editors", TakeEditors},
    {"printing", TakePrinting},
};

// Returns the exit code: 0 when all pictures were written, 2 for a set that does not exist.
int TakeSets(CPictureFolder& folder, const QStringList& names) {
  const ScopedPlatform pinned(FakeLocale(), FakeClock({2026, 5, 13}));
  for (const QString& name : names) {
    if (std::none_of(std::begin(kSets), std::end(kSets),
                     [&](const auto& set) { return name == QLatin1String(set.name); })) {
      std::fprintf(stderr, "there is no set of pictures named %s\n", qPrintable(name));
      return 2;
    }
  }
  for (const auto& set : kSets)
    if (names.isEmpty() || names.contains(QLatin1String(set.name))) set.take(folder);
  return folder.Failures() == 0 ? 0 : 1;
}

}  // namespace
}  // namespace orbisol

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QStringList arguments = QCoreApplication::arguments().mid(1);
  if (arguments.isEmpty()) {
    std::fputs("usage: orbisol_screenshots FOLDER [theme=dark|theme=contrast] [SET...]\n", stderr);
    return 2;
  }
  orbisol::SpeakFrench(application);
  orbisol::SetProgramStyle();
  const QString path = arguments.takeFirst();
  if (!QDir().mkpath(path)) return 1;
  for (const orbisol::Theme& theme : {orbisol::kDarkTheme, orbisol::kContrastTheme})
    if (arguments.removeAll(QStringLiteral("theme=%1").arg(QLatin1String(theme.name))) > 0)
      QApplication::setPalette(theme.Palette());
  orbisol::CPictureFolder folder(path);
  return orbisol::TakeSets(folder, arguments);
}
