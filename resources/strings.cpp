#include "resources/strings.h"

#include <algorithm>
#include <array>

#include "resources/texts/base_texts.h"
#include "resources/texts/calendar_texts.h"
#include "resources/texts/command_texts.h"
#include "resources/texts/editing_texts.h"
#include "resources/texts/preferences_texts.h"
#include "resources/texts/print_texts.h"
#include "resources/texts/reader_texts.h"
#include "resources/texts/window_texts.h"

namespace orbisol {
namespace {

constexpr bool ById(const TextEntry& a, const TextEntry& b) { return a.id < b.id; }

// Returns the tables one behind the other, as one.
template <std::size_t... kSizes>
constexpr auto Joined(const TextEntry (&... tables)[kSizes]) {
  std::array<TextEntry, (kSizes + ...)> joined{};
  std::size_t end = 0;
  const auto append = [&](const auto& table) {
    for (const TextEntry& entry : table) joined[end++] = entry;
  };
  (append(tables), ...);
  return joined;
}

// A number in two tables, or in the wrong one, is found by the check below.
constexpr auto kStrings = Joined(kBaseTexts, kCalendarTexts, kWindowTexts, kEditingTexts, kPrintTexts,
                                 kPreferencesTexts, kReaderTexts, kCommandTexts);

constexpr bool IsStrictlySorted() {
  return std::adjacent_find(kStrings.begin(), kStrings.end(), [](const TextEntry& a, const TextEntry& b) {
           return !ById(a, b);
         }) == kStrings.end();
}
static_assert(IsStrictlySorted());

}  // namespace

std::u16string_view StringText(int id) {
  const auto found = std::lower_bound(kStrings.begin(), kStrings.end(), TextEntry{id, {}}, ById);
  if (found == kStrings.end() || found->id != id) return {};
  return found->text;
}

}  // namespace orbisol
