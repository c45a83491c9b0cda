// What can be done with the user's calendars, with its questions and messages and without a window of its
// own.
//
//   CCalendarActions actions({store, calendars}, {Display(), Rules(), Content()}, parent);
//   if (actions.Open(u"Famille")) …           // another calendar is in use
//   if (actions.HasChangedLive()) emit calendarChanged();
//
// Each function returns true when it is done. Where one returns false the user was told why, every file is as
// it was, and so is what is in force, except for a calendar that the user had reloaded.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "settings/display_settings.h"
#include "ui/window/save_calendar.h"

class QWidget;

namespace orbisol {

// The records in force; a change of calendar changes all three.
struct LiveCalendar {
  DisplaySettings& display;
  CalendarRules& rules;
  CalendarContent& content;
};

class CCalendarActions {
 public:
  // What is referred to outlives this object. Messages stand over `parent`.
  CCalendarActions(const SavePlaces& places, const LiveCalendar& live, QWidget* parent)
      : m_places(places), m_live(live), m_parent(parent) {}

  // Returns the calendars that have a file, and the one in use, which may have none yet; in any order.
  std::vector<std::u16string> Names() const;
  std::u16string CurrentName() const;
  bool IsCurrent(std::u16string_view name) const { return name == CurrentName(); }

  // Saves the calendar in use, and puts another one in its place.
  bool Open(std::u16string_view name);

  // Saves the calendar in use, and goes on under a new name: with its events, its look and its rules, or
  // empty and as a fresh calendar looks. `name` was accepted by FaultOfNewName.
  bool Create(std::u16string_view name, bool keepsEvents);

  // Renames a calendar and its versions. The key never names a calendar that has no file, wherever this ends.
  bool Rename(std::u16string_view name, std::u16string_view newName);

  // Moves a calendar and its versions to the trash, after a question. The one in use is refused.
  bool Delete(std::u16string_view name);

  // Writes a copy to a file outside the calendars' folder; of the calendar in use as it is in force.
  bool Export(std::u16string_view name, std::u16string_view path);

  // Returns the state that a version would replace: what is in force or what the file holds. That file is
  // then the one that Restore() expects to find.
  CalendarFile StateOf(std::u16string_view name);

  // Saves an earlier version in the place of a calendar, which is thereby kept as a version itself.
  bool Restore(std::u16string_view name, const CalendarVersion& version);

  // Returns whether what is in force has changed since the last call.
  bool HasChangedLive();

  const CVersions& Versions() const { return m_places.calendars.Versions(); }

 private:
  CalendarFile InForce() const;
  bool IsSaved() const;
  bool SaveCurrent();
  void PutInForce(CalendarFile calendar);
  void Say(int text, std::u16string_view name) const;
  bool RestoreCurrent(std::string_view bytes);
  bool RestoreOther(std::u16string_view name, std::string_view bytes);

  SavePlaces m_places;
  LiveCalendar m_live;
  QWidget* m_parent;
  bool m_hasChangedLive = false;
};

}  // namespace orbisol
