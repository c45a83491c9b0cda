#include "ui/shell/run.h"

#include <QApplication>
#include <QSocketNotifier>
#include <QTimer>

#include <memory>
#include <vector>

#include "core/platform.h"
#include "platform/activation_token.h"
#include "platform/desktop_files.h"
#include "platform/desktop_locale.h"
#include "platform/desktop_store.h"
#include "platform/folders.h"
#include "platform/runtime_folder.h"
#include "resources/strings.h"
#include "ui/shell/calendar_frame.h"
#include "ui/shell/program_end.h"
#include "ui/toolkit/french_toolkit.h"
#include "ui/toolkit/messages.h"
#include "ui/toolkit/plain_text.h"
#include "ui/toolkit/program_style.h"
#include "ui/toolkit/space_key.h"
#include "ui/window/save_calendar.h"
#include "ui/window/tool_icons.h"

namespace orbisol {
int Run(const StartUp& startUp) {
  if (!startUp.store.Read()) {
    Messages().ShowError(nullptr, TableText(kTextBrokenInstallation));
    return 0;
  }
  CSingleInstance instance(startUp.instance);
  if (instance.Role() == InstanceRole::kRaised) return 0;
  if (instance.Role() == InstanceRole::kSilent &&
      Messages().Choose(nullptr, TableText(kTextSilentInstance), {TableText(kTextOpenAnyway)}) != 0)
    return 0;

  CSpaceKeyFilter spaceKey;
  QCoreApplication::instance()->installEventFilter(&spaceKey);

  CCalendarStore calendars(startUp.files, startUp.folders);
  const std::vector<TakenBack> takenBack = calendars.TakeBack();  // before the calendar in use is read
  const CPublicCalendars publicCalendars(startUp.files, startUp.folders);
  CCalendarFrame frame({startUp.store, calendars, publicCalendars, startUp.locale});
  std::unique_ptr<QSocketNotifier> calls;
  if (instance.Descriptor() >= 0) {
    calls = std::make_unique<QSocketNotifier>(instance.Descriptor(), QSocketNotifier::Read);
    QObject::connect(calls.get(), &QSocketNotifier::activated, &frame, [&] {
      if (const auto token = instance.TakeCall()) frame.Raise(*token);
    });
  }
  const CProgramEnd end(frame);
  frame.Open();
  QTimer::singleShot(0, &frame, [&] { SayTakenBack(&frame, takenBack); });
  return QApplication::exec();
}

int Run(QApplication& application) {
  SpeakFrench(application);
  SetProgramStyle();
  QApplication::setWindowIcon(ProgramIcon());
  static const CDesktopLocale locale;
  SetPlatform(locale, *CurrentPlatform().clock);

  const Folders folders = DesktopFolders();
  CDesktopFiles files(folders.trash);
  CDesktopStore store(files, folders.stores);
  return Run({store,
              files,
              CalendarFoldersOf(folders),
              {locale.Language(), locale.Country()},
              {RuntimeFolder(), DisplayName(), ActivationToken()}});
}

}  // namespace orbisol
