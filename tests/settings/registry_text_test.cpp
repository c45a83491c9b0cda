#include "settings/registry_text.h"

#include <gtest/gtest.h>

#include "core/text.h"

namespace orbisol {
namespace {

using namespace std::string_literals;

const std::string kKey = "[HKEY_CURRENT_USER\\SOFTWARE\\Corvalen\\Calendar]\n";

// As a registry editor exports it, the values of two keys between others.
const std::string kExport =
    "Windows Registry Editor Version 5.00\r\n\r\n"
    "[HKEY_CURRENT_USER\\SOFTWARE\\Corvalen]\r\n"
    "\"Grid\"=dword:00000007\r\n\r\n"
    "[HKEY_CURRENT_USER\\Software\\CORVALEN\\Calendar]\r\n"
    "@=\"the nameless value\"\r\n"
    "\"CalendarName\"=\"\xC3\x89t\xC3\xA9 \\\"20\\\\24\\\"\"\r\n"
    "\"Grid\"=dword:0000000a\r\n"
    "\"Expanded\"=hex(2):41,00,00,00\r\n"
    "\"WindowLayout\"=hex:01,02,03,\\\r\n  04,05,\\\r\n  06\r\n"
    "\"Quad\"=hex(b):01,00,00,00,00,00,00,00\r\n"
    "\"Odd\"=hex(1):41,00,42\r\n"
    "\"Nothing\"=hex(0):\r\n\r\n"
    "[HKEY_CURRENT_USER\\SOFTWARE\\Corvalen\\Other]\r\n"
    "\"Grid\"=dword:00000009\r\n";

std::string Utf16(std::string_view utf8) {
  std::string bytes = "\xFF\xFE";
  for (const char16_t unit : FromUtf8(utf8)) {
    bytes += static_cast<char>(unit & 0xFF);
    bytes += static_cast<char>(unit >> 8);
  }
  return bytes;
}

StoredValues ValuesOf(std::string_view lines) { return CRegistryText(kKey + std::string(lines)).Values(); }

// The number of a single value, or nothing when its line has none.
std::optional<std::uint32_t> Number(const std::string& value) {
  return DwordOf(ValuesOf("\"A\"=" + value), "A");
}

TEST(RegistryTextTest, AnExportIsReadWithAllItsTypes) {
  for (const std::string& bytes : {kExport, "\xEF\xBB\xBF" + kExport, Utf16(kExport)}) {
    const StoredValues values = CRegistryText(bytes).Values();
    EXPECT_EQ(values.size(), 7u);
    EXPECT_EQ(TextOf(values, "CalendarName", 260), u"Été \"20\\24\"");
    EXPECT_EQ(DwordOf(values, "Grid"), 10u);
    EXPECT_EQ(DwordOf(values, "GRID"), 10u);
    EXPECT_EQ(TextOf(values, "Expanded", 260), u"A");
    EXPECT_EQ(BinaryOf(values, "WindowLayout"), (std::vector<std::uint8_t>{1, 2, 3, 4, 5, 6}));
    EXPECT_EQ(values.find("Quad")->second, (StoredValue{11, "\x01\0\0\0\0\0\0\0"s}));
    EXPECT_EQ(values.find("Odd")->second, (StoredValue{kRegSz, "A\0B"s}));
    EXPECT_EQ(values.find("Nothing")->second, (StoredValue{0, ""}));
    EXPECT_EQ(TextOf(values, "Odd", 260), std::nullopt);
  }
}

TEST(RegistryTextTest, ChangesLeaveEveryOtherLineAsItIs) {
  CRegistryText text(Utf16(kExport));
  EXPECT_TRUE(text.Set("grid", DwordValue(1)));
  EXPECT_TRUE(text.Set("New", TextValue(u"J.+1")));
  text.Delete("Quad");
  text.Delete("Never there");

  std::string expected;
  for (const char c : kExport)
    if (c != '\r') expected += c;
  const auto replace = [&](const std::string& from, const std::string& to) {
    expected.replace(expected.find(from), from.size(), to);
  };
  replace("0000000a", "00000001");
  replace("\"Quad\"=hex(b):01,00,00,00,00,00,00,00\n", "");
  replace("hex(0):\n", "hex(0):\n\"New\"=\"J.+1\"\n");
  EXPECT_EQ(text.Bytes(), expected);
}

TEST(RegistryTextTest, LinesThatAreNotUnderstoodAreKeptAndAreNoValues) {
  constexpr const char* kLines[] = {
      "; a remark",
      "\"Open=dword:00000001",
      "\"Name\" dword:00000001",
      "\"\"=dword:00000001",
      "\"A\"=dword:123456789",
      "\"B\"=dword:",
      "\"C\"=dword:0x10",
      "\"D\"=hex:01,,02",
      "\"E\"=hex:123",
      "\"F\"=hex(g):01",
      "\"G\"=hex(1:01",
      "\"H\"=hex(123456789):01",
      "\"I\"=\"open",
      "\"J\"=\"closed\" and more",
      "\"K\"=-",
      "\"L\"=",
      "\"M\"=qword:1",
      "[not a key",
  };
  std::string lines;
  for (const char* line : kLines) lines += std::string(line) + "\n";
  EXPECT_TRUE(ValuesOf(lines).empty());
  EXPECT_EQ(CRegistryText(kKey + lines).Bytes(), kKey + lines);
}

TEST(RegistryTextTest, WhatAPersonMayWriteIsReadWithPatience) {
  EXPECT_EQ(Number("dword:7"), 7u);
  EXPECT_EQ(Number(" DWORD: FFFFFFFF\t"), 0xFFFFFFFFu);
  EXPECT_EQ(Number("hex(4):01, 02,\t0,0,"), 0x201u);
  EXPECT_EQ(Number("hex(4):01,00"), std::nullopt) << "two bytes are no number";
  EXPECT_EQ(Number("hex:01,00,00,00"), std::nullopt) << "nor are four of another type";
  EXPECT_EQ(Number("dword:1\n\"a\"=dword:2"), 2u) << "the later line counts";
  EXPECT_EQ(Number("dword:1\n\"A\"=-"), std::nullopt);

  // A value whose end is lost takes no other line along.
  const StoredValues values = ValuesOf("\"A\"=hex:01,02,\\\n\"B\"=dword:00000003\n\"C\"=hex:04,\\");
  EXPECT_EQ(BinaryOf(values, "A"), (std::vector<std::uint8_t>{1, 2}));
  EXPECT_EQ(DwordOf(values, "B"), 3u);
  EXPECT_EQ(BinaryOf(values, "C"), (std::vector<std::uint8_t>{4}));
}

TEST(RegistryTextTest, EveryValueIsReadAsItWasSet) {
  std::string everyByte;
  for (int byte = 0; byte < 256; ++byte) everyByte += static_cast<char>(byte);
  const StoredValue values[] = {
      TextValue(u""),
      TextValue(u"C:\\Images\\\"été\" 🌕"),
      TextValue(u"two\nlines"),
      TextValue(u"a\0b"s),
      TextValue(u"half a pair \xD83C"s),
      DwordValue(0xFFFFFFFF),
      {kRegDword, "\x01\x02"},
      {kRegSz, ""},
      {kRegSz, "A"},
      {kRegSz, "A\0B\0"s},
      {kRegBinary, ""},
      {kRegBinary, everyByte},
      {kRegExpandSz, everyByte},
      {0xFFFFFFFF, "\xFF"},
  };
  CRegistryText text("");
  int count = 0;
  for (const StoredValue& value : values) {
    const std::string name = "\"\\" + std::to_string(count++);
    ASSERT_TRUE(text.Set(name, value));
    const CRegistryText again(text.Bytes());
    EXPECT_EQ(again.Values(), text.Values());
    EXPECT_EQ(again.Values().find(name)->second, value);
    EXPECT_EQ(again.Bytes(), text.Bytes());
  }
  for (std::size_t begin = 0; begin < text.Bytes().size();) {  // as long as a person can read
    const std::size_t end = text.Bytes().find('\n', begin);
    EXPECT_LE(end - begin, 80u);
    begin = end + 1;
  }
  EXPECT_FALSE(text.Set("", DwordValue(1)));
  EXPECT_FALSE(text.Set("a\nb", DwordValue(1)));
  EXPECT_FALSE(text.Set("\xFF", DwordValue(1)));
}

TEST(RegistryTextTest, AValueFindsItsKeyOrMakesIt) {
  CRegistryText empty("");
  EXPECT_TRUE(empty.Set("Grid", DwordValue(1)));
  EXPECT_EQ(empty.Bytes(), "Windows Registry Editor Version 5.00\n\n" + kKey + "\"Grid\"=dword:00000001\n");

  CRegistryText other("[HKEY_CURRENT_USER\\Other]\n\"Grid\"=dword:00000002\n");
  EXPECT_TRUE(other.Set("Grid", DwordValue(1)));
  EXPECT_EQ(other.Bytes(),
            "[HKEY_CURRENT_USER\\Other]\n\"Grid\"=dword:00000002\n\n" + kKey + "\"Grid\"=dword:00000001\n");
}

TEST(RegistryTextTest, AnyBytesAreReadAndThenStayAsTheyAre) {
  const std::string inputs[] = {
      "",
      "\n\n",
      "\r",
      "\xFF\xFE",
      "\xFF\xFE\x41",
      "\xFF\xFE\xFF\xFE\x41\0"s,
      "\xEF\xBB\xBF\xEF\xBB\xBF\xFF\xFE\x41\0"s,
      "\xEF\xBB\xBF\xFF" + kKey,
      "\xFF\xFE\x3C\xD8",
      kKey + "\"\xC3\"=dword:00000001",
      kKey + "\"A\"=hex:\\\r\r\n\\\n\\",
      std::string("\0[\0]", 4),
  };
  for (const std::string& bytes : inputs) {
    const CRegistryText once(bytes);
    const CRegistryText twice(once.Bytes());
    EXPECT_EQ(twice.Bytes(), once.Bytes()) << testing::PrintToString(bytes);
    EXPECT_EQ(twice.Values(), once.Values()) << testing::PrintToString(bytes);
  }
}

TEST(SettingsStoreTest, TextsAreJudgedByTheirBytes) {
  const auto read = [](ValueType type, const std::string& bytes, std::size_t maxUnits = 3) {
    return TextOf({{"A", {type, bytes}}}, "a", maxUnits);
  };
  EXPECT_EQ(read(kRegSz, "A\0\0\0"s), u"A");
  EXPECT_EQ(read(kRegExpandSz, "%\0A\0%\0\0\0"s), u"%A%");
  EXPECT_EQ(read(kRegSz, ""), u"");
  EXPECT_EQ(read(kRegSz, "A\0\0\0B\0\0\0"s), u"A") << "a zero inside ends the text";
  EXPECT_EQ(read(kRegSz, "A\0B\0"s), std::nullopt) << "no zero at the end";
  EXPECT_EQ(read(kRegSz, "A\0\0"s), std::nullopt) << "an odd number of bytes";
  EXPECT_EQ(read(kRegBinary, "A\0\0\0"s), std::nullopt);
  EXPECT_EQ(read(kRegSz, "A\0A\0A\0A\0\0\0"s), std::nullopt) << "too long";
}

}  // namespace
}  // namespace orbisol
