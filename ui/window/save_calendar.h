// Saves the calendar in use from a window, and asks where its file cannot simply be replaced. No other part
// of the windows saves a calendar.
//
//   SavedFromWindow saved = SaveCalendarFromWindow(this, {store, calendars}, Display(), Rules(), Content());
//   if (saved.end == SaveEnd::kReloaded) PutInForce(std::move(*saved.reloaded));
//   if (saved.end == SaveEnd::kUnsaved) return;  // the dialog stays, nothing is lost
//
// Each message says what the file holds now:
//
// - Somebody else changed the file: the user keeps both (the own calendar goes to a free name, the default),
//   reloads (the own changes are kept as an earlier version) or replaces (the other one is backed up to
//   "<name>.xml.bak").
// - The file cannot be written or read, and is as it was: the user saves under a free name (the default), or
//   tries again.
// - The new bytes are in place, but the disk did not confirm them: that is said.
//
// A question that is closed without an answer leaves everything as it is.
#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "settings/settings_persistence.h"

class QWidget;

namespace orbisol {

// The places that a save writes to. Both are those that the settings were read from: `calendars` remembers
// the file as it was then.
struct SavePlaces {
  SettingsStore& store;
  CCalendarStore& calendars;
};

enum class SaveEnd {
  kSaved,     // the calendar is in its file; `display` names it, under another name after "Garder les deux"
  kReloaded,  // nothing was written: the user wants the calendar in the file
  kUnsaved,   // nothing was written, and all changes stay unsaved
};

struct SavedFromWindow {
  SaveEnd end = SaveEnd::kUnsaved;
  // After kReloaded alone. The caller puts look, rules and content in force and clears `changed`: from now on
  // a save no longer finds that the file was changed.
  std::optional<CalendarFile> reloaded;
  bool keyStored = false;  // whether the values of the key reached the disk too
};

// Saves as SaveSettings does, and switches to `newName` where that is given; it must be a valid name. Shows
// its questions over `parent`, which may be null. `display` changes after kSaved alone.
SavedFromWindow SaveCalendarFromWindow(QWidget* parent, const SavePlaces& places, DisplaySettings& display,
                                       const CalendarRules& rules, const CalendarContent& content,
                                       std::optional<std::u16string_view> newName = {});

// Saves an earlier version in the place of the calendar in use, with the same questions. The caller puts it
// in force after kSaved. `inForce` is what a reload would give up.
SavedFromWindow RestoreCalendarFromWindow(QWidget* parent, const SavePlaces& places, DisplaySettings& display,
                                          const CalendarFile& inForce, std::string_view version);

enum class KeptEnd {
  kSaved,    // the calendar is in a file of the user's calendars, as after SaveEnd::kSaved
  kAside,    // it is put aside, and the next start takes it back
  kNowhere,  // it is lost when the program ends
};

// Saves at the end of a session, when nobody can be asked: where the file cannot simply be replaced, the
// calendar goes to a free name beside it, and where that fails too, as on a full disk, it is put aside.
KeptEnd SaveUnasked(const SavePlaces& places, DisplaySettings& display, const CalendarRules& rules,
                    const CalendarContent& content);

// Says of each calendar that such an end had put aside where it is now.
void SayTakenBack(QWidget* parent, const std::vector<TakenBack>& calendars);

// Puts look, rules and content of a calendar in force, as after kReloaded, and clears `changed`. What shows
// them must be told.
void PutInForce(CalendarFile calendar);

}  // namespace orbisol
