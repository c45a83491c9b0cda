// Takes over the settings of older releases, which kept everything under the key, into the calendar's file.
// This happens once.
#pragma once

#include "settings/settings_persistence.h"

namespace orbisol {

// Migrates the settings, for ReadSettings, when the key holds no calendar name. `values` is the key as it was
// read; `stored` holds the calendar "Calendar" as it was loaded, or the content of the first start where it
// has no file.
//
// The old values go into `stored` and the calendar is written. Only when that succeeded, the copies of public
// calendars that older releases made (IsFirstStartCopy) go to the trash, and the old values are
// deleted in one step with the writing of the new ones. Whatever fails or is interrupted, the next start does
// the rest.
//
// In a calendar that has no file yet, an old value that is absent takes the default of older releases.
//
// On purpose: in a calendar that has a file, an old value replaces only what is still as in a fresh calendar,
// and one that is absent replaces nothing. The file may hold a reform and colors that the user chose since,
// while the key may have lost no more than its calendar name, or could not be written for a while.
//
// Where the key cannot be written, the old values are shown in this session and nothing is written here.
void MigrateLegacySettings(const StoredValues& values, SettingsStore& store, CCalendarStore& calendars,
                           StoredSettings& stored);

}  // namespace orbisol
