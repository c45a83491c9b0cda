// Any bytes are a settings key. What was read and written once stays as it is from then on, what is set is
// read again and disturbs nothing else, and the program starts with whatever the key says.

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

// The same names, upper and lower case aside, with the same values.
bool Same(const StoredValues& a, const StoredValues& b) {
  const NameLess less;
  return std::equal(a.begin(), a.end(), b.begin(), b.end(), [&](const auto& x, const auto& y) {
    return !less(x.first, y.first) && !less(y.first, x.first) && x.second == y.second;
  });
}

// The same values, written and read again.
void CheckFixedPoint(const CRegistryText& text) {
  const CRegistryText again(text.Bytes());
  Check(again.Bytes() == text.Bytes());
  Check(again.Values() == text.Values());
  Check(again.IsLossless());
}

// The first bytes of the input choose the type, the others are the value.
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

// A start, which may migrate, and another, which must find what the first one left.
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
