#include "core/text.h"

#include <gtest/gtest.h>

#include <climits>

namespace orbisol {
namespace {

using namespace std::string_view_literals;

TEST(TextTest, WellFormedUtf8GoesBothWays) {
  constexpr std::pair<std::string_view, std::u16string_view> kTexts[] = {
      {"\xC3\x89t\xC3\xA9 a\0b \x7F"sv, u"Été a\0b \x7F"sv},
      {"\xC2\x80 \xDF\xBF \xE0\xA0\x80 \xED\x9F\xBF \xEE\x80\x80", u"\x80 \x7FF \x800 \xD7FF \xE000"},
      {"\xF0\x90\x80\x80 \xF1\x80\x80\x80 \xF4\x8F\xBF\xBF", u"\xD800\xDC00 \xD8C0\xDC00 \xDBFF\xDFFF"},
  };
  for (const auto& [bytes, text] : kTexts) {
    EXPECT_EQ(FromUtf8(bytes), text);
    EXPECT_EQ(ToUtf8(text), bytes);
  }
}

// One replacement for each longest beginning of a character: the Unicode standard, 3.9, table 3-8.
TEST(TextTest, WhatIsMalformedIsReplacedPieceByPiece) {
  constexpr std::pair<std::string_view, unsigned> kRows[] = {
      {"\x80", 1},         {"\xC0\xAF", 2},
      {"\xE0\x80\xAF", 3}, {"\xF0\x80\x80\xAF", 4},
      {"\xED\xA0\x80", 3}, {"\xF4\x90\x80\x80", 4},
      {"\xF5\xFF", 2},     {"\xE1\x80\xE2\xF0\x91\x92\xF1\xBF", 4},
  };
  for (const auto& [bytes, lost] : kRows) {
    const std::u16string replaced(lost, u'\xFFFD');
    EXPECT_EQ(FromUtf8(std::string(bytes) + "A"), replaced + u"A");
    EXPECT_EQ(FromUtf8(bytes), replaced);
  }
  for (const char16_t unit : {u'\xD800', u'\xDBFF', u'\xDC00', u'\xDFFF'})
    EXPECT_EQ(ToUtf8(std::u16string{unit, u'A', unit}), "\uFFFDA\uFFFD");
  EXPECT_EQ(ToUtf8(u"\xD83C\xD83C\xDF84"), "\xEF\xBF\xBD\xF0\x9F\x8E\x84");
}

TEST(TextTest, FixedTextsAreCutAndNeverInsideAPair) {
  EXPECT_EQ(FixedText<5>(u"abcde"sv).View(), u"abcd");
  EXPECT_EQ(FixedText<5>(u"abc🎄"sv).View(), u"abc");
  EXPECT_EQ(FixedText<5>(u"ab🎄"sv).View(), u"ab🎄");
  FixedText<5> text = u"a\0b"sv;
  EXPECT_EQ(text, FixedText<5>(u"a"sv));
  text.Set(u"x"sv, 0);
  EXPECT_TRUE(text.IsEmpty() && FixedText<5>().IsEmpty());
}

TEST(TextTest, TextsAreSplitAndReplacedFromLeftToRight) {
  EXPECT_EQ(Split(u"a||b|", u'|'), (std::vector{u"a"sv, u""sv, u"b"sv, u""sv}));
  constexpr std::u16string_view kPieces[] = {u"", u"a", u"", u"b", u"", u"", u""};
  for (int n = -1; n < 6; ++n) EXPECT_EQ(Piece(u"a||b|", u'|', n), kPieces[n + 1]) << n;
  EXPECT_EQ(ReplaceAll(u"aaa", u"aa", u"a"), u"aa") << "and not in what was written";
  EXPECT_EQ(ReplaceAll(u"&<&", u"&", u"&amp;"), u"&amp;<&amp;");
}

TEST(TextTest, UpperFirstKnowsTheLettersOfEurope) {
  constexpr std::u16string_view kLower = u"azàþÿāķĺňŋœŷźžıάέήίαςσϊόύώаяѐџ";
  constexpr std::u16string_view kUpper = u"AZÀÞŸĀĶĹŇŊŒŶŹŽIΆΈΉΊΑΣΣΪΌΎΏАЯЀЏ";
  for (std::size_t i = 0; i < kLower.size(); ++i)
    for (const char16_t first : {kLower[i], kUpper[i]})
      EXPECT_EQ(UpperFirst(std::u16string{first, u'é'}), (std::u16string{kUpper[i], u'é'}));
  for (const char16_t* same : {u"", u"1er", u"÷", u"×", u"ß", u"ĸ", u"ŉ", u"月曜日", u"🎄"})
    EXPECT_EQ(UpperFirst(same), same);
}

TEST(TextTest, FoldedTextsHaveNoCapitalsAccentsLigaturesOrCurvedApostrophes) {
  EXPECT_EQ(Folded(u"CŒUR d’Été à Łódź, ﬁn ß 🎄 1792"), u"coeur d'ete a lodz, ﬁn ss 🎄 1792");
  EXPECT_EQ(Folded(u"e\u0301"), u"e") << "an accent by itself is one too";
  EXPECT_EQ(Folded(u"ΆΣς Йй İ"), u"ασσ ии i");
  for (char16_t unit = 1; unit < 0xD800; ++unit) {
    const std::u16string once = Folded(std::u16string{unit});
    ASSERT_EQ(Folded(once), once) << static_cast<int>(unit);
  }
}

TEST(TextTest, NumbersAreReadWithPatienceAndSaturate) {
  EXPECT_EQ(ParseDecimal(u" \t\r\n-7.5"), -7);
  EXPECT_EQ(ParseDecimal(u"+3ab"), 3);
  for (const char16_t* none : {u"", u"- 1", u"zz11", u"４２"}) EXPECT_EQ(ParseDecimal(none), 0);
  EXPECT_EQ(ParseDecimal(u"0000000000000000042"), 42);
  EXPECT_EQ(ParseDecimal(u"2147483648"), INT_MAX);
  EXPECT_EQ(ParseDecimal(u"-99999999999999999999999999999999"), INT_MIN);
  EXPECT_EQ(DecimalText(LLONG_MIN), u"-9223372036854775808");
}

TEST(TextTest, PatternsAreFilledInOrder) {
  EXPECT_EQ(FormatText(u"%s %d, %d %%", {u"%d"sv, 5, -44}), u"%d 5, -44 %");
  EXPECT_EQ(FormatText(u"[%2d] [%2d] [%4s]", {1, 123, u"a"sv}), u"[ 1] [123] [   a]");
  EXPECT_EQ(FormatText(u"%d|%s|", {}), u"||");
  EXPECT_EQ(FormatText(u"a%12", {1}), u"a");
  EXPECT_EQ(FormatText(u"%99999999999999999999d", {1}).size(), 99U);  // the number of blanks is bounded
}

}  // namespace
}  // namespace orbisol
