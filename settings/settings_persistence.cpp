#include "settings/settings_persistence.h"

#include <variant>

#include "settings/legacy_settings.h"
#include "settings/window_layout.h"

namespace orbisol {
namespace {

constexpr char kMainLayout[] = "WindowLayout";
constexpr char kPrintLayout[] = "PrintWindowLayout";
constexpr char kCellTexts[] = "CellTexts";

constexpr Rect kPrintRect{50, 50, 800, 600};  // rectangle of the print window while none is stored

// Numbers of the key, in the order in which they are written.
struct NumberValue {
  const char* name;
  std::variant<bool DisplaySettings::*, int DisplaySettings::*> field;
  std::uint32_t ifAbsent;
  std::uint32_t mask = 0xFFFFFFFF;  // bits of the stored number that are used
};
constexpr NumberValue kNumbers[] = {
    {"CircleTheDay", &DisplaySettings::circleTheDay, 0},
    {"CircleWidth", &DisplaySettings::circleWidth, 2, 0xFFFF},
    {"Grid", &DisplaySettings::grid, 1},
    {"TipsEvtOnly", &DisplaySettings::tipsForEventsOnly, 1},
    {"ShowWeekNumber", &DisplaySettings::showWeekNumber, 1},
    {"CollapseCells", &DisplaySettings::collapseCells, 1},
    {"FullCellBkgnd", &DisplaySettings::fullCellBackground, 0},
    {"BkgndAlpha", &DisplaySettings::backgroundAlpha, 128},
    {"MagnetMouse", &DisplaySettings::magnetMouse, 1},
    {kCellTexts, &DisplaySettings::cellTexts, 0},  // unknown to older releases, and so the last
};

void ReadNumbers(const StoredValues& values, DisplaySettings& display) {
  for (const NumberValue& row : kNumbers) {
    const std::uint32_t number = DwordOf(values, row.name).value_or(row.ifAbsent) & row.mask;
    if (const auto* const flag = std::get_if<bool DisplaySettings::*>(&row.field))
      display.** flag = number != 0;
    else
      display.*std::get<int DisplaySettings::*>(row.field) = static_cast<int>(number);
  }
}

void ReadLayout(const StoredValues& values, const char* name, const Rect& ifAbsent, const Rect& screen,
                WindowLayout& layout) {
  layout.rect = ifAbsent;
  if (const auto bytes = BinaryOf(values, name)) LayoutFromBytes(*bytes, layout);
  if (!HasRoom(layout.rect)) layout.rect = ifAbsent;
  layout.rect = FitRectToScreen(layout.rect, screen);
}

bool SaveLayout(SettingsStore& store, const char* name, WindowLayout& layout, const ClosingFrame& frame,
                const Rect& screen) {
  if (frame.minimized) return false;
  layout = ClosingLayout(layout, frame, screen);
  return store.Write({{name, BinaryValue(LayoutToBytes(layout))}});
}

void SetName(DisplaySettings& display, const CCalendarStore& calendars, std::u16string_view name) {
  display.calendarName.Set(name);
  display.calendarPath = calendars.PathOf(name);
}

// Switches the name, clears `changed` and writes the key, as the save of the calendar's file ended.
SaveOutcome FinishSave(SettingsStore& store, const CCalendarStore& calendars, DisplaySettings& display,
                       const SavedCalendar& saved, std::optional<std::u16string_view> newName) {
  SaveOutcome outcome{saved.result, saved.name, false};
  if (outcome.calendar == WriteResult::kChanged) return outcome;
  if (IsInPlace(outcome.calendar)) SetName(display, calendars, newName ? *newName : saved.name);
  if (outcome.calendar == WriteResult::kWritten) display.changed = false;
  outcome.key = store.Write(KeyChanges(display));
  return outcome;
}

}  // namespace

StoredSettings ReadSettings(SettingsStore& store, CCalendarStore& calendars,
                            const CPublicCalendars& publicCalendars, const UserLocale& locale,
                            const Rect& screen) {
  StoredSettings stored;
  const std::optional<StoredValues> values = store.Read();
  stored.keyFound = values.has_value();

  DisplaySettings& display = stored.display;
  std::optional<std::u16string> name;
  if (values) {
    stored.layoutStored = BinaryOf(*values, kMainLayout).has_value();
    ReadLayout(*values, kMainLayout, WindowLayout().rect, screen, display.mainLayout);
    ReadLayout(*values, kPrintLayout, kPrintRect, screen, display.printLayout);
    name = TextOf(*values, kCalendarNameValue, kMaxPathUnits);
    ReadNumbers(*values, display);
  }
  const bool migrates = values && !name;
  SetName(display, calendars, CalendarNameOrDefault(name.value_or(u"")));

  CalendarFile calendar;
  stored.file = calendars.Load(display.calendarName.View(), calendar);
  display.Look() = calendar.look;
  stored.rules = calendar.rules;
  stored.content = std::move(calendar.content);
  if (stored.file == LoadResult::kMissing && (migrates || IsFirstStart(calendars)))
    stored.content = FirstStartContent(publicCalendars, locale);
  if (migrates) MigrateLegacySettings(*values, store, calendars, stored);
  return stored;
}

SaveOutcome SaveSettings(SettingsStore& store, CCalendarStore& calendars, DisplaySettings& display,
                         const CalendarRules& rules, const CalendarContent& content, IfChanged ifChanged,
                         std::optional<std::u16string_view> newName) {
  if (newName && !IsCalendarName(*newName)) return {};

  // An empty name, of the key or of a record that was never filled, stands for the default name.
  const std::u16string name = CalendarNameOrDefault(display.calendarName.View());
  const SavedCalendar saved = calendars.Save(name, {display.Look(), rules, content, u""}, ifChanged);
  return FinishSave(store, calendars, display, saved, newName);
}

SaveOutcome RestoreSettings(SettingsStore& store, CCalendarStore& calendars, DisplaySettings& display,
                            std::string_view version, IfChanged ifChanged) {
  const std::u16string name = CalendarNameOrDefault(display.calendarName.View());
  return FinishSave(store, calendars, display, calendars.Restore(name, version, ifChanged), {});
}

Preferences ReadPreferences(const SettingsStore& store, const CCalendarStore& calendars,
                            const DisplaySettings& display, const CalendarRules& rules) {
  Preferences read{display, rules};
  const std::optional<StoredValues> values = store.Read();
  if (values && TextOf(*values, kCalendarNameValue, kMaxPathUnits)) ReadNumbers(*values, read.display);
  read.display.cellTexts = display.cellTexts;
  if (const auto bytes = calendars.BytesOf(CalendarNameOrDefault(display.calendarName.View()))) {
    const CalendarFile stored = ReadCalendar(*bytes);
    read.display.Look() = stored.look;
    read.rules = stored.rules;
  }
  return read;
}

bool SaveCellTexts(SettingsStore& store, const DisplaySettings& display) {
  return store.Write({{kCellTexts, DwordValue(display.cellTexts ? 1 : 0)}});
}

bool SwitchCalendar(SettingsStore& store, const CCalendarStore& calendars, DisplaySettings& display,
                    std::u16string_view name) {
  SetName(display, calendars, name);
  return store.Write(KeyChanges(display));
}

bool SaveMainWindowLayout(SettingsStore& store, WindowLayout& layout, const ClosingFrame& frame,
                          const Rect& screen) {
  return SaveLayout(store, kMainLayout, layout, frame, screen);
}

bool SavePrintWindowLayout(SettingsStore& store, WindowLayout& layout, const ClosingFrame& frame,
                           const Rect& screen) {
  return SaveLayout(store, kPrintLayout, layout, frame, screen);
}

std::vector<StoreChange> KeyChanges(const DisplaySettings& display) {
  std::vector<StoreChange> changes{{kCalendarNameValue, TextValue(display.calendarName.View())}};
  for (const NumberValue& row : kNumbers) {
    const auto* const flag = std::get_if<bool DisplaySettings::*>(&row.field);
    const int number =
        flag != nullptr ? display.**flag : display.*std::get<int DisplaySettings::*>(row.field);
    changes.push_back({row.name, DwordValue(static_cast<std::uint32_t>(number))});
  }
  return changes;
}

}  // namespace orbisol
