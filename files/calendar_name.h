// Names of calendars: a calendar's name is its file's name without ".xml".
//
//   IsCalendarName(u"Famille");                  // true
//   IsCalendarName(u"../Famille");               // false
//   FaultOfNewName(u"famille", store.Names());   // NameFault::kTaken, where there is a "Famille"
//   CalendarPath(u"/home/eva/…", u"Famille");    // u"/home/eva/…/Famille.xml"
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "files/file_system.h"

namespace orbisol {

constexpr std::u16string_view kDefaultCalendarName = u"Calendar";
constexpr std::size_t kMaxCalendarNameBytes = 200;  // in UTF-8

// Returns whether a text can name a calendar's file: not empty, not "." or "..", not too long, without
// separators and control characters.
bool IsCalendarName(std::u16string_view name);

// The reason why a calendar cannot get a name.
enum class NameFault {
  kNone,
  kBlank,       // empty, or blanks alone
  kInvisible,   // with an invisible character: one of no width, or for the direction of writing
  kNoFileName,  // not accepted by IsCalendarName
  kReserved,    // it ends in "_public", as the calendars that are meant for first starts do
  kTaken,       // a calendar has that name, upper and lower case aside
};

// Checks a new or changed name, as it was typed, and returns its first fault. `names` are those of the
// calendars that there are, without the one that is renamed. It refuses more than IsCalendarName, which also
// accepts names made by older releases and other programs.
NameFault FaultOfNewName(std::u16string_view name, std::span<const std::u16string> names);

// Returns `name`, or "Calendar" if it is not a valid calendar name.
std::u16string CalendarNameOrDefault(std::u16string_view name);

// Returns the name of the public calendar that is meant for the first start in a language: "fr_public".
std::u16string FirstStartName(std::u16string_view language);

// Returns whether a name has that form: exactly two characters of any kind and "_public". Older releases gave
// each user copies of these calendars.
bool IsFirstStartName(std::u16string_view name);

// Returns "Famille (3)" for "Famille" and for "Famille (2)" and the number 3. A name that would become too
// long is cut.
std::u16string NumberedName(std::u16string_view name, int number);

// Orders names by the alphabet, without upper case and accents, so that "États-Unis" stands under E.
bool AlphabeticallyBefore(std::u16string_view a, std::u16string_view b);

// Returns the path of a calendar's file.
std::u16string CalendarPath(std::u16string_view folder, std::u16string_view name);

// Returns the names of the calendars in a folder, in any order.
std::vector<std::u16string> CalendarNamesIn(const FileSystem& files, std::u16string_view folder);

}  // namespace orbisol
