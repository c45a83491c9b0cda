// The values of the one key in which the program keeps what belongs to a user and to no calendar. platform/
// keeps them in a file, tests in memory.
//
//   const std::optional<StoredValues> values = store.Read();   // nothing: there is no key
//   DwordOf(*values, "Grid").value_or(1);
//   store.Write({{"Grid", DwordValue(0)}, {"BoldFont", {}}});  // sets the one, deletes the other
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace orbisol {

using ValueType = std::uint32_t;       // any number may be met; the program itself writes 1, 3 and 4
constexpr ValueType kRegSz = 1;        // text, UTF-16LE, a zero at its end
constexpr ValueType kRegExpandSz = 2;  // the same; names of variables inside are not expanded
constexpr ValueType kRegBinary = 3;    // bytes
constexpr ValueType kRegDword = 4;     // 32 bits, little-endian

// Names the calendar in use. A key without it is one of an older release.
constexpr char kCalendarNameValue[] = "CalendarName";

struct StoredValue {
  ValueType type = kRegBinary;
  std::string bytes;  // bytes as stored, whatever the type

  bool operator==(const StoredValue&) const = default;
};

StoredValue TextValue(std::u16string_view text);
StoredValue DwordValue(std::uint32_t number);
StoredValue BinaryValue(std::span<const std::uint8_t> bytes);

// Orders names, in which upper and lower case of the letters A to Z count as one.
struct NameLess {
  using is_transparent = void;
  bool operator()(std::string_view a, std::string_view b) const;
};
using StoredValues = std::map<std::string, StoredValue, NameLess>;  // names in UTF-8

// Returns the text of UTF-16LE bytes; half a unit at the end is left out.
std::u16string FromUtf16Le(std::string_view bytes);

// Return the value of that name; nothing if there is none or it has another type.
//
// A number needs four bytes. A text of either kind needs an even number of bytes and a zero at its end, or no
// byte at all, which is the empty text; it has at most `maxUnits` units before its last zero and ends at its
// first.
std::optional<std::uint32_t> DwordOf(const StoredValues& values, std::string_view name);
std::optional<std::u16string> TextOf(const StoredValues& values, std::string_view name, std::size_t maxUnits);
std::optional<std::vector<std::uint8_t>> BinaryOf(const StoredValues& values, std::string_view name);

struct StoreChange {
  std::string name;                  // not empty, without control characters
  std::optional<StoredValue> value;  // nothing deletes the value, which need not exist
};

struct SettingsStore {
  virtual ~SettingsStore() = default;

  // Returns the values; nothing when the key does not exist. A key that exists and cannot be read holds the
  // name of the default calendar alone: the program goes on with that calendar and takes nothing for an older
  // release's.
  virtual std::optional<StoredValues> Read() const = 0;

  // Makes all changes, in their order, or none. Returns false when that is not sure: there is no key, it
  // cannot be read, written or synced, or another process keeps it locked. The key itself is never made here;
  // the installation brings it. Without changes it only tells whether the key can be written.
  virtual bool Write(const std::vector<StoreChange>& changes) = 0;
};

}  // namespace orbisol
