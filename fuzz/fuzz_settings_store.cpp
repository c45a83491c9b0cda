// Reads any bytes as a settings key. A key that was read and written once must stay the same from then on, a
// value that is set must be read back and change no other, and the program must start with any key.

#include <algorithm>
#include <cstdint>
#include <cstdlib>

#include "settings/settings_persistence.h"
#include "tests/support/memory_files.h"
#include "tests/support/memory_store.h"

namespace {

using namespace orbisol;

void Check(bool holds) {
  if (!holds) std::abort();
}

// Returns whether two keys have the same names, upper and lower case aside, with the same values.
bool Same(const StoredValues& a, const StoredValues& b) {
  const NameLess less;
  return std::equal(a.begin(), a.end(), b.begin(), b.end(), [&](const auto& x, const auto& y) {
    return !less(x.first, y.first) && !less(y.first, x.first) && x.second == y.second;
  });
}

// Checks that a key written and read back is the same.
void CheckFixedPoint(const CRegistryText& text) {
  const CRegistryText again(text.Bytes());
  Check(again.Bytes() == text.Bytes());
  Check(again.Values() == text.Values());
  Check(again.IsLossless());
}

// Sets a value made of the input, then deletes another one, and checks that nothing else changes.
void CheckChanges(CRegistryText text, std::string_view bytes) {
  StoredValues expected = text.Values();
  StoredValue value{kRegBinary, std::string(bytes.substr(0, 300))};
  if (!bytes.empty()) value.type = static_cast<unsigned char>(bytes[0]) % 6u;
  for (const char* name : {"CalendarName", "a \"new\" \\ name"}) {
    Check(text.Set(name, value));
    expected.insert_or_assign(name, value);
    Check(Same(text.Values(), expected));
    CheckFixedPoint(text);
  }
  text.Delete("Grid");
  expected.erase("Grid");
  Check(Same(text.Values(), expected));
  CheckFixedPoint(text);
}

// Starts twice: the first start may migrate, and the second must find what it left.
void CheckStarts(const std::string& bytes) {
  CMemoryStore store;
  store.text = bytes;
  CMemoryFiles files;
  CCalendarStore calendars(files, kMemoryFolders);
  const CPublicCalendars publicCalendars(files, kMemoryFolders);
  const Rect screen{0, 0, 1920, 1080};
  const StoredSettings first = ReadSettings(store, calendars, publicCalendars, {u"fr", u"FR"}, screen);
  Check(first.keyFound);
  Check(IsCalendarName(first.display.calendarName.View()));
  store.written.clear();
  const StoredSettings second = ReadSettings(store, calendars, publicCalendars, {u"fr", u"FR"}, screen);
  Check(store.written.empty());
  Check(second.display.mainLayout == first.display.mainLayout);
  Check(second.display.calendarName == first.display.calendarName);
  Check(second.rules == first.rules);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string bytes(reinterpret_cast<const char*>(data), size);
  const CRegistryText text(bytes);
  CheckFixedPoint(text);
  CheckChanges(text, bytes);
  CheckStarts(bytes);
  return 0;
}
