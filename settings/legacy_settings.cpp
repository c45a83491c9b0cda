#include "settings/legacy_settings.h"

#include "core/text.h"

namespace orbisol {
namespace {

constexpr char kFontName[] = "FontName";
constexpr char kBoldFont[] = "BoldFont";
constexpr char kBackgroundImage[] = "BackgroundImage";
constexpr char kBgImagePath[] = "BgImagePath";
constexpr char kProlepticJulian[] = "ProlepticJulian";
constexpr char kGregorianStart[] = "GregorianStart";
constexpr char kFirstDayOfYear[] = "FirstDayOfYear";

// Older releases wrote it, but the calendar's file or the locale decides.
constexpr char kIso8601[] = "Iso8601";

constexpr Color kColorMask = 0xFFFFFF;
constexpr std::size_t kMaxTableUnits = 4096;  // far more than four dates

// The dates in the form yyyymmdd, most recent first, each with a plus sign when it carries "J.+1", with a
// semicolon between. A date of 0 ends the table.
void ReadCivilYears(std::u16string_view text, CalendarRules& rules) {
  int row = 0;
  for (CivilYearStart& start : rules.firstDayOfYear) start = {};
  for (const std::u16string_view piece : Split(text, u';')) {
    if (piece.empty()) continue;
    const bool plusOne = piece.starts_with(u'+') || piece.ends_with(u'+');
    const PackedDate from = ParseDecimal(piece);
    if (from == 0 || row == kCivilYearRows) return;
    rules.firstDayOfYear[row++] = {from, plusOne};
  }
}

void ReadLegacyValues(const StoredValues& values, CalendarFile& calendar) {
  DisplaySettings& display = calendar.display;
  if (const auto name = TextOf(values, kFontName, kMaxPathUnits)) display.fontName.Set(*name);
  if (const auto weight = DwordOf(values, kBoldFont)) display.fontWeight = static_cast<int>(*weight);
  for (const ColorInfo& row : ColorTable()) {
    if (row.index == kColorWeekNumber) continue;
    if (const auto color = DwordOf(values, row.name))
      display.colors[static_cast<std::size_t>(row.index)] = *color & kColorMask;
  }
  if (const auto shown = DwordOf(values, kBackgroundImage)) display.backgroundImage = *shown != 0;
  if (const auto path = TextOf(values, kBgImagePath, kMaxPathUnits)) display.backgroundImagePath.Set(*path);

  CalendarRules& rules = calendar.rules;
  if (const auto proleptic = DwordOf(values, kProlepticJulian)) rules.proleptic = *proleptic != 0;
  const auto start = DwordOf(values, kGregorianStart);
  rules.ApplyGregorianStart(start ? GregorianStartOrDefault(static_cast<int>(*start)) : rules.startGregorian);
  if (const auto years = TextOf(values, kFirstDayOfYear, kMaxTableUnits)) ReadCivilYears(*years, rules);
}

// What is deleted, in this order.
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
  // Where the deletion cannot follow, the old values would undo at every start what the user has changed
  // since.
  if (stored.file == LoadResult::kLoaded && !store.Write({})) return;

  CalendarFile& calendar = stored.calendar;
  if (stored.file == LoadResult::kMissing)
    for (const ColorInfo& row : ColorTable())
      calendar.display.colors[static_cast<std::size_t>(row.index)] = row.migrated;
  ReadLegacyValues(values, calendar);

  const std::u16string_view name = calendar.display.calendarName.View();
  if (calendars.Save(name, calendar, IfChanged::kRefuse) != WriteResult::kWritten) return;

  // Before the key says that all is done, so that a start interrupted here is not the last that tries.
  for (const std::u16string& other : calendars.Names())
    if (IsFirstStartName(other)) calendars.Delete(other);

  std::vector<StoreChange> changes = Deletions();
  for (StoreChange& change : KeyChanges(calendar.display)) changes.push_back(std::move(change));
  store.Write(changes);
}

}  // namespace orbisol
