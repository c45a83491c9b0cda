// The body of the program.
#pragma once

#include "files/file_system.h"
#include "files/first_start.h"
#include "platform/single_instance.h"
#include "settings/settings_store.h"

class QApplication;

namespace orbisol {

// What start-up is given by the machine.
struct StartUp {
  SettingsStore& store;
  FileSystem& files;
  CalendarFolders folders;
  UserLocale locale;
  InstancePlace instance;  // where a second start finds the first
};

// Until the main window is closed; the exit code. Without a settings key the installation is broken: that is
// said, and nothing is opened. Where the program runs already its window is raised instead.
int Run(const StartUp& startUp);

// The same with the answers of the desktop.
int Run(QApplication& application);

}  // namespace orbisol
