// The body of the program, from the settings key to the end of the main window.
//
//   QApplication application(argc, argv);
//   return Run(application);
#pragma once

#include "files/file_system.h"
#include "files/first_start.h"
#include "platform/single_instance.h"
#include "settings/settings_store.h"

class QApplication;

namespace orbisol {

// Parts of the machine that start-up uses; they outlive the call.
struct StartUp {
  SettingsStore& store;
  FileSystem& files;
  CalendarFolders folders;
  UserLocale locale;
  InstancePlace instance;  // place where a second start finds the first
};

// Runs until the main window closes and returns the exit code, which is 0. Without a settings key it reports
// a broken installation and opens nothing. If the program is running already it raises that window instead. A
// signal to end and the end of the session store the place of the window.
int Run(const StartUp& startUp);

// Runs with the answers of the desktop.
int Run(QApplication& application);

}  // namespace orbisol
