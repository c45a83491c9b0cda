#include "settings/legacy_settings.h"

#include <utility>

#include "core/text.h"
#include "files/calendar_params.h"

namespace orbisol {
namespace {

constexpr char kFontName[] = "FontName";
constexpr char kBoldFont[] = "BoldFont";
constexpr char kBackgroundImage[] = "BackgroundImage";
constexpr char kBgImagePath[] = "BgImagePath";
constexpr char kProlepticJulian[] = "ProlepticJulian";
constexpr char kGregorianStart[] = "GregorianStart";
constexpr char kFirstDayOfYear[] = "FirstDayOfYear";

// Value of older releases. On purpose: it is not taken over, because the calendar's file or the locale
// decides.
constexpr char kIso8601[] = "Iso8601";

constexpr Color kColorMask = 0xFFFFFF;
constexpr std::size_t kMaxTableUnits = 4096;  // far more than four dates need

// Returns the table in the form of calendar files. Older releases may have written the plus sign of "J.+1"
// after the date.
std::u16string TableOfFiles(std::u16string_view table) {
  std::u16string text;
  for (std::u16string_view piece : Split(table, u';')) {
    if (piece.ends_with(u'+')) {
      piece.remove_suffix(1);
      text += u'+';
    }
    text.append(piece).append(u";");
  }
  return text;
}

// Takes over the old values of all fields of `look` and `rules` that still equal those of `before`.
void ReadLegacyValues(const StoredValues& values, const CalendarFile& before, CalendarLook& look,
                      CalendarRules& rules) {
  const auto take = [](auto& field, const auto& fieldBefore, const auto& old) {
    if (field == fieldBefore) field = old;
  };
  using Text = decltype(look.fontName);
  if (const auto name = TextOf(values, kFontName, kMaxPathUnits))
    take(look.fontName, before.look.fontName, Text(*name));
  if (const auto weight = DwordOf(values, kBoldFont))
    take(look.fontWeight, before.look.fontWeight, static_cast<int>(*weight));
  for (const ColorInfo& row : ColorTable()) {
    if (row.index == kColorWeekNumber)
      continue;  // On purpose: this color is deleted with the others, but not taken over.
    const auto i = static_cast<std::size_t>(row.index);
    if (const auto color = DwordOf(values, row.name))
      take(look.colors[i], before.look.colors[i], *color & kColorMask);
  }
  if (const auto shown = DwordOf(values, kBackgroundImage))
    take(look.backgroundImage, before.look.backgroundImage, *shown != 0);
  if (const auto path = TextOf(values, kBgImagePath, kMaxPathUnits))
    take(look.backgroundImagePath, before.look.backgroundImagePath, Text(*path));

  if (const auto proleptic = DwordOf(values, kProlepticJulian))
    take(rules.proleptic, before.rules.proleptic, *proleptic != 0);
  PackedDate start = rules.startGregorian;
  if (const auto old = DwordOf(values, kGregorianStart))
    take(start, before.rules.startGregorian, GregorianStartOrDefault(static_cast<int>(*old)));
  rules.ApplyGregorianStart(start);
  const auto years = TextOf(values, kFirstDayOfYear, kMaxTableUnits);
  if (years && rules.firstDayOfYear[0].from == 0) ReadCivilYears(TableOfFiles(*years), rules);
}

std::vector<StoreChange> Deletions() {
  std::vector<StoreChange> changes;
  for (const char* name : {kFontName, kBoldFont}) changes.push_back({name, {}});
  for (const ColorInfo& row : ColorTable()) changes.push_back({std::string(row.name), {}});
  for (const char* name :
       {kBackgroundImage, kBgImagePath, kIso8601, kProlepticJulian, kGregorianStart, kFirstDayOfYear})
    changes.push_back({name, {}});
  return changes;
}

}  // namespace

void MigrateLegacySettings(const StoredValues& values, SettingsStore& store, CCalendarStore& calendars,
                           StoredSettings& stored) {
  CalendarLook& look = stored.display.Look();
  if (stored.file == LoadResult::kMissing)
    for (const ColorInfo& row : ColorTable()) look.colors[static_cast<std::size_t>(row.index)] = row.migrated;
  CalendarFile before;
  if (stored.file != LoadResult::kLoaded) before = {look, stored.rules, {}, {}};
  ReadLegacyValues(values, before, look, stored.rules);

  // If it is unknown whether there is a file, or what it holds, the next start tries again.
  if (stored.file == LoadResult::kUnreadable) return;
  // If the old values could not be deleted afterwards, no file is made of them.
  if (!store.Write({})) return;
  const std::u16string_view name = stored.display.calendarName.View();
  const CalendarFile calendar{look, stored.rules, stored.content, u""};
  if (calendars.Save(name, calendar, IfChanged::kRefuse).result != WriteResult::kWritten) return;

  // The old values go last, so that the next start repeats a migration that is interrupted here.
  for (const std::u16string& other : calendars.Names())
    if (IsFirstStartCopy(calendars, other)) calendars.Delete(other);

  std::vector<StoreChange> changes = Deletions();
  for (StoreChange& change : KeyChanges(stored.display)) changes.push_back(std::move(change));
  store.Write(changes);
}

}  // namespace orbisol
