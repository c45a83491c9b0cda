#include "settings/registry_text.h"

#include <gtest/gtest.h>

#include "core/text.h"
#include "tests/support/file_bytes.h"

namespace orbisol {
namespace {

using namespace std::string_literals;

const std::string kKey = "[HKEY_CURRENT_USER\\SOFTWARE\\Corvalen\\Calendar]\n";
// Returns a key as a registry editor exports it, its values between those of two others.
const std::string kExport = BytesOf(ORBISOL_TEST_DATA "/settings/export.reg");

std::string Utf16(std::string_view utf8) {
  const std::string text = TextValue(FromUtf8(utf8)).bytes;
  return "\xFF\xFE" + text.substr(0, text.size() - 2);  // without the zero at its end
}

StoredValues ValuesOf(std::string_view lines) { return CRegistryText(kKey + std::string(lines)).Values(); }

TEST(RegistryTextTest, AnExportIsReadWithAllItsTypes) {
  for (const std::string& bytes : {kExport, "\xEF\xBB\xBF" + kExport, Utf16(kExport)}) {
    const StoredValues values = CRegistryText(bytes).Values();
    EXPECT_EQ(values.size(), 14u);
    EXPECT_EQ(TextOf(values, "CalendarName", 260), u"Été \"20\\24\"");
    EXPECT_EQ(DwordOf(values, "CIRCLEWIDTH"), 0x10003u);
    EXPECT_EQ(BinaryOf(values, "WindowLayout")->size(), 25u) << "over three lines";
    EXPECT_EQ(values.find("Quad")->second, (StoredValue{11, "\x01\0\0\0\0\0\0\0"s}));
    EXPECT_EQ(values.find("Nothing")->second, (StoredValue{0, ""}));
  }
}

TEST(RegistryTextTest, ChangesLeaveEveryOtherLineAsItIs) {
  CRegistryText text(Utf16(kExport));
  EXPECT_TRUE(text.Set("circlewidth", DwordValue(1)));
  EXPECT_TRUE(text.Set("New", TextValue(u"J.+1")));
  text.Delete("Quad");
  text.Delete("Never there");

  std::string expected = kExport;
  std::erase(expected, '\r');
  const auto replace = [&](const std::string& from, const std::string& to) {
    expected.replace(expected.find(from), from.size(), to);
  };
  replace("00010003", "00000001");
  replace("\"Quad\"=hex(b):01,00,00,00,00,00,00,00\n", "");
  replace("hex(0):\n", "hex(0):\n\"New\"=\"J.+1\"\n");
  EXPECT_EQ(text.Bytes(), expected);
}

TEST(RegistryTextTest, LinesThatAreNotUnderstoodAreKeptAndAreNoValues) {
  const std::string bytes = BytesOf(ORBISOL_TEST_DATA "/settings/not_understood.reg");
  EXPECT_TRUE(CRegistryText(bytes).Values().empty());
  EXPECT_EQ(CRegistryText(bytes).Bytes(), bytes);
}

TEST(RegistryTextTest, WhatAPersonMayWriteIsReadWithPatience) {
  constexpr std::pair<const char*, std::optional<std::uint32_t>> kNumbers[] = {
      {" DWORD: FFFFFFFF\t", 0xFFFFFFFF},
      {"hex(4):01, 02,\t0,0,", 0x201},
      {"hex(4):01,00", {}},           // two bytes are no number,
      {"hex:01,00,00,00", {}},        // nor are four of another type
      {"dword:1\n\"a\"=dword:2", 2},  // the later line counts
      {"dword:1\n\"A\"=-", {}},
  };
  for (const auto& [value, number] : kNumbers)
    EXPECT_EQ(DwordOf(ValuesOf("\"A\"="s + value), "A"), number) << value;

  CRegistryText twice("[HKEY_CURRENT_USER\\SOFTWARE\\Corvalen\\Calendar]\n\"A\"=dword:1\n\"a\"=dword:2\n");
  EXPECT_TRUE(twice.Set("A", DwordValue(3)));
  EXPECT_EQ(DwordOf(twice.Values(), "a"), 3u) << "the line that is read is the one that is set";

  // A value whose end is lost does not swallow the lines after it.
  const StoredValues values = ValuesOf("\"A\"=hex:01,02,\\\n\"B\"=dword:00000003\n\"C\"=hex:04,\\");
  EXPECT_EQ(BinaryOf(values, "A"), (std::vector<std::uint8_t>{1, 2}));
  EXPECT_EQ(DwordOf(values, "B"), 3u);
  EXPECT_EQ(BinaryOf(values, "C"), (std::vector<std::uint8_t>{4}));
}

TEST(RegistryTextTest, EveryValueIsReadAsItWasSet) {
  std::string everyByte;
  for (int byte = 0; byte < 256; ++byte) everyByte += static_cast<char>(byte);
  CRegistryText text("");
  for (const ValueType type : {kRegSz, kRegExpandSz, kRegBinary, kRegDword, 0xFFFFFFFFu})
    for (const std::string& bytes :
         {""s, "A"s, "A\0B\0"s, "\x01\xFF\xFE\x80"s, everyByte, TextValue(u"C:\\\"été\" 🌕").bytes,
          TextValue(u"two\nlines").bytes, TextValue(u"half a pair \xD83C").bytes}) {
      const std::string name = "\"\\" + std::to_string(text.Values().size());
      ASSERT_TRUE(text.Set(name, {type, bytes}));
      const CRegistryText again(text.Bytes());
      EXPECT_EQ(again.Values().find(name)->second, (StoredValue{type, bytes}));
      EXPECT_EQ(again.Bytes(), text.Bytes());
    }
  EXPECT_NE(text.Bytes().find(",\\\n  "), std::string::npos) << "long lines are broken";
  for (const char* name : {"", "a\nb", "\xFF"}) EXPECT_FALSE(text.Set(name, DwordValue(1)));
}

TEST(RegistryTextTest, AValueFindsItsKeyOrMakesIt) {
  const std::string made = "\n" + kKey + "\"Grid\"=dword:00000001\n";
  const std::string other = "[HKEY_CURRENT_USER\\Other]\n\"Grid\"=dword:00000002\n";
  for (const std::string& before : {""s, other}) {
    CRegistryText text(before);
    EXPECT_TRUE(text.Set("Grid", DwordValue(1)));
    EXPECT_EQ(text.Bytes(), (before.empty() ? "Windows Registry Editor Version 5.00\n" : before) + made);
  }
}

TEST(SettingsStoreTest, OnlyWellFormedBytesAreATextOfAtMostTheAllowedLength) {
  const std::tuple<ValueType, std::string, std::optional<std::u16string>> kRows[] = {
      {kRegSz, "A\0\0\0"s, u"A"},
      {kRegExpandSz, "%\0A\0%\0\0\0"s, u"%A%"},
      {kRegSz, "A\0\0\0B\0\0\0"s, u"A"},  // a zero inside ends the text
      {kRegSz, "A\0B\0"s, {}},            // no zero at the end
      {kRegSz, "A\0\0"s, {}},             // an odd number of bytes
      {kRegBinary, "A\0\0\0"s, {}},
      {kRegSz, "A\0A\0A\0A\0\0\0"s, {}},  // too long
  };
  for (const auto& [type, bytes, text] : kRows) EXPECT_EQ(TextOf({{"A", {type, bytes}}}, "a", 3), text);
}

}  // namespace
}  // namespace orbisol
