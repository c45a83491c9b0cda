// The text form of registry exports, in which the key is kept.
//
//   Windows Registry Editor Version 5.00
//
//   [HKEY_CURRENT_USER\SOFTWARE\Corvalen\Calendar]
//   "CalendarName"="Été"
//   "Grid"=dword:00000001
//   "WindowLayout"=hex:32,00,00,00,32,00,00,00
//   "Other"=hex(7):61,00,00,00
//
// A long value goes on in the next line when a line ends with a backslash.
//
//   CRegistryText text(bytes);
//   text.Set("Grid", DwordValue(0));
//   bytes = text.Bytes();
//
// Any bytes are read: UTF-16LE with its mark, else UTF-8 with or without one; malformed characters become
// U+FFFD. Lines that are not understood, and all lines of other keys, are kept as they are. What is written
// is UTF-8 without a mark, with LF line ends, and reading and writing it again changes nothing.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "settings/settings_store.h"

namespace orbisol {

// Greatest size of a file that is a readable key: short lines take far more room in memory than in the file.
constexpr std::size_t kMaxKeyBytes = std::size_t{1} << 20;

class CRegistryText {
 public:
  explicit CRegistryText(std::string_view bytes);

  // Returns whether every character was well-formed. Otherwise Bytes() has U+FFFD where the file had
  // something else: back the file up before they replace it.
  bool IsLossless() const { return m_isLossless; }

  // Returns the values of our key; of two lines with one name the later counts. A line whose value is
  // malformed, such as dword:123456789, is no value.
  StoredValues Values() const;

  // Sets a value, which keeps its place among the lines; a new one stands behind the others. Of two lines
  // with one name the later is set. Returns false, and changes nothing, for a name that no line can hold: an
  // empty one or one with a control character.
  bool Set(std::string_view name, const StoredValue& value);

  // Deletes every line of that name from our key.
  void Delete(std::string_view name);

  std::string Bytes() const;

 private:
  struct Item {
    enum Kind { kOther, kOurKey, kOurValue };

    std::string text;  // one line, or the lines of one value, without the last line end
    Kind kind = kOther;
    std::string name;                  // name of the value
    std::optional<StoredValue> value;  // nothing when malformed
  };

  std::vector<Item> m_items;
  bool m_isLossless;
};

}  // namespace orbisol
