#include "core/text.h"

#include <gtest/gtest.h>

#include <climits>
#include <random>

#include "core/rect.h"

namespace orbisol {
namespace {

using namespace std::string_view_literals;

constexpr char16_t kLost = 0xFFFD;

TEST(TextTest, WellFormedUtf8GoesBothWays) {
  for (const auto& [bytes, text] : {
           std::pair{""sv, u""sv},
           {"a\0b"sv, u"a\0b"sv},
           {"\x7F \xC2\x80 \xDF\xBF"sv, u"\x7F \x80 \x7FF"sv},
           {"\xE0\xA0\x80 \xED\x9F\xBF \xEE\x80\x80 \xEF\xBF\xBF"sv, u"\x800 \xD7FF \xE000 \xFFFF"sv},
           {"\xF0\x90\x80\x80 \xF4\x8F\xBF\xBF"sv, u"\xD800\xDC00 \xDBFF\xDFFF"sv},
           {"\xC3\x89t\xC3\xA9 \xF0\x9F\x8E\x84"sv, u"Été 🎄"sv},
       }) {
    EXPECT_EQ(FromUtf8(bytes), text);
    EXPECT_EQ(ToUtf8(text), bytes);
  }
}

// One replacement for each longest beginning of a character: the Unicode standard, 3.9, table 3-8 and its
// neighbors.
TEST(TextTest, MalformedUtf8IsReplacedPieceByPiece) {
  constexpr struct {
    const char* what;
    std::string_view bytes;
    int lost;  // replacements, then "A"
  } kRows[] = {
      {"a continuation alone", "\x80", 1},      {"overlong slash", "\xC0\xAF", 2},
      {"overlong of three", "\xE0\x80\xAF", 3}, {"overlong of four", "\xF0\x80\x80\xAF", 4},
      {"a surrogate", "\xED\xA0\x80", 3},       {"above the last", "\xF4\x90\x80\x80", 4},
      {"no lead at all", "\xF5\xFF", 2},        {"two of three", "\xE1\x80", 1},
      {"three of four", "\xF1\x80\x80", 1},     {"lead after lead", "\xE1\x80\xE2\xF0\x91\x92\xF1\xBF", 4},
  };
  for (const auto& row : kRows) {
    SCOPED_TRACE(row.what);
    const std::u16string lost(static_cast<std::size_t>(row.lost), kLost);
    EXPECT_EQ(FromUtf8(std::string(row.bytes) + "A"), lost + u"A");
    EXPECT_EQ(FromUtf8(row.bytes), lost);  // at the end of the text
  }
}

TEST(TextTest, ALoneSurrogateIsReplaced) {
  for (const char16_t unit : {u'\xD800', u'\xDBFF', u'\xDC00', u'\xDFFF'})
    EXPECT_EQ(ToUtf8(std::u16string{unit, u'A', unit}), "\uFFFDA\uFFFD");
  EXPECT_EQ(ToUtf8(u"\xD83C\xD83C\xDF84"), "\xEF\xBF\xBD\xF0\x9F\x8E\x84");
}

TEST(TextTest, AnyBytesBecomeTextThatGoesBothWays) {
  std::mt19937 random(1);
  constexpr unsigned char kEdges[] = {0x00, 0x41, 0x7F, 0x80, 0x8F, 0x90, 0x9F, 0xA0, 0xBF, 0xC0, 0xC2,
                                      0xDF, 0xE0, 0xE1, 0xED, 0xEF, 0xF0, 0xF1, 0xF4, 0xF5, 0xFF};
  for (int i = 0; i < 20'000; ++i) {
    std::string bytes(random() % 12, '\0');
    for (char& byte : bytes) byte = static_cast<char>(kEdges[random() % std::size(kEdges)]);
    const std::u16string text = FromUtf8(bytes);
    ASSERT_LE(text.size(), bytes.size());
    ASSERT_EQ(FromUtf8(ToUtf8(text)), text);
    ASSERT_EQ(bytes == ToUtf8(text), text.find(kLost) == std::u16string::npos);
  }
}

TEST(TextTest, FixedTextsAreCutAndNeverInsideAPair) {
  FixedText<5> text;
  EXPECT_TRUE(text.IsEmpty());
  text.Set(u"abcde"sv);
  EXPECT_EQ(text.View(), u"abcd");
  text.Set(u"abc🎄"sv);
  EXPECT_EQ(text.View(), u"abc");
  text.Set(u"ab🎄"sv);
  EXPECT_EQ(text.View(), u"ab🎄");
  text.Set(u"ab🎄"sv, 3);
  EXPECT_EQ(text.View(), u"ab");
  text.Set(u"a\0b"sv);
  EXPECT_EQ(text, FixedText<5>(u"a"sv));
  text.Set(u"x"sv, 0);
  EXPECT_TRUE(text.IsEmpty());
  EXPECT_EQ(CutText(u"🎄"sv, 0), u"");
}

TEST(TextTest, PiecesIncludeTheEmptyOnes) {
  EXPECT_EQ(Split(u"a||b|", u'|'), (std::vector{u"a"sv, u""sv, u"b"sv, u""sv}));
  EXPECT_EQ(Split(u"", u'|'), (std::vector{u""sv}));
  constexpr std::u16string_view kPieces[] = {u"", u"a", u"", u"b", u"", u"", u""};
  for (int n = -1; n < 6; ++n) EXPECT_EQ(Piece(u"a||b|", u'|', n), kPieces[n + 1]) << n;
  EXPECT_EQ(Piece(u"a", u'|', INT_MIN), u"");
  EXPECT_EQ(Piece(u"a", u'|', INT_MAX), u"");
}

TEST(TextTest, ReplaceAllGoesFromLeftToRightAndNotIntoWhatItWrote) {
  EXPECT_EQ(ReplaceAll(u"aaa", u"aa", u"a"), u"aa");
  EXPECT_EQ(ReplaceAll(u"&<&", u"&", u"&amp;"), u"&amp;<&amp;");
  EXPECT_EQ(ReplaceAll(u"", u"a", u"b"), u"");
}

TEST(TextTest, UpperFirstKnowsTheLettersOfEurope) {
  constexpr std::u16string_view kLower = u"azàþÿāķĺňŋœŷźžıάέήίαςσϊόύώаяѐџ";
  constexpr std::u16string_view kUpper = u"AZÀÞŸĀĶĹŇŊŒŶŹŽIΆΈΉΊΑΣΣΪΌΎΏАЯЀЏ";
  for (std::size_t i = 0; i < kLower.size(); ++i) {
    const std::u16string rest = u"bé";
    EXPECT_EQ(UpperFirst(kLower[i] + rest), kUpper[i] + rest);
    EXPECT_EQ(UpperFirst(kUpper[i] + rest), kUpper[i] + rest);
  }
  for (const char16_t* same : {u"", u"1er", u"÷", u"×", u"ß", u"ĸ", u"ŉ", u"ſ", u"月曜日", u"🎄"})
    EXPECT_EQ(UpperFirst(same), same);
}

TEST(TextTest, NumbersAreReadWithPatienceAndSaturate) {
  constexpr struct {
    const char16_t* text;
    int number;
  } kRows[] = {
      {u"-", 0},
      {u"- 1", 0},
      {u"12ab", 12},
      {u" \t\n-7.5", -7},
      {u"+3", 3},
      {u"000000000000000000000042", 42},
      {u"00zz11", 0},
      {u"2147483647", INT_MAX},
      {u"2147483648", INT_MAX},
      {u"-2147483648", INT_MIN},
      {u"-2147483649", INT_MIN},
      {u"99999999999999999999999999999999", INT_MAX},
      {u"-99999999999999999999999999999999", INT_MIN},
      {u"４２", 0},
  };
  for (const auto& row : kRows) EXPECT_EQ(ParseDecimal(row.text), row.number) << ToUtf8(row.text);
  for (const int number : {0, -1, 15821015, INT_MIN, INT_MAX})
    EXPECT_EQ(ParseDecimal(DecimalText(number)), number);
  EXPECT_EQ(DecimalText(LLONG_MIN), u"-9223372036854775808");
}

TEST(TextTest, PatternsAreFilledInOrder) {
  EXPECT_EQ(FormatText(u"%s %d, %d", {u"mai"sv, 5, -44}), u"mai 5, -44");
  EXPECT_EQ(FormatText(u"[%2d] [%2d] [%2d] [%4s]", {1, 12, 123, u"a"sv}), u"[ 1] [12] [123] [   a]");
  EXPECT_EQ(FormatText(u"100 %% %s", {u"%d"sv}), u"100 % %d");
  EXPECT_EQ(FormatText(u"[%10d]", {-7}), u"[        -7]");
  EXPECT_EQ(FormatText(u"%d|%s|", {}), u"||");
  EXPECT_EQ(FormatText(u"a", {1, 2}), u"a");
  EXPECT_EQ(FormatText(u"%d %", {1}), u"1 ");
  EXPECT_EQ(FormatText(u"%12", {1}), u"");
  EXPECT_EQ(FormatText(u"%99999999999999999999d", {1}).size(), 99U);  // no number of blanks is endless
}

TEST(RectTest, EdgesBelongToTheLeftAndTheTop) {
  constexpr Rect kRect{10, 20, 30, 25};
  EXPECT_EQ(kRect.Width(), 20);
  EXPECT_EQ(kRect.Height(), 5);
  EXPECT_TRUE(kRect.Contains(10, 20) && kRect.Contains(29, 24));
  EXPECT_FALSE(kRect.Contains(30, 24) || kRect.Contains(29, 25) || kRect.Contains(9, 20) ||
               kRect.Contains(10, 19));
  EXPECT_EQ(kRect.Shrunk(1), (Rect{11, 21, 29, 24}));
  EXPECT_EQ(kRect.Shrunk(2, -1), (Rect{12, 19, 28, 26}));
}

TEST(RectTest, MulDivRoundsHalvesAwayFromZeroAndSaturates) {
  EXPECT_EQ(
      (std::vector{MulDiv(7, 1, 2), MulDiv(-7, 1, 2), MulDiv(7, -1, 2), MulDiv(7, 1, -2), MulDiv(-7, 1, -2)}),
      (std::vector{4, -4, -4, -4, 4}));
  EXPECT_EQ(
      (std::vector{MulDiv(7, 1, 3), MulDiv(8, 1, 3), MulDiv(-8, 1, 3), MulDiv(0, 5, 3), MulDiv(1, 1, 0)}),
      (std::vector{2, 3, -3, 0, -1}));
  EXPECT_EQ(MulDiv(INT_MAX, INT_MAX, INT_MAX), INT_MAX);
  EXPECT_EQ(MulDiv(INT_MIN, INT_MIN, INT_MIN), INT_MIN);
  EXPECT_EQ(MulDiv(INT_MAX, INT_MAX, 1), INT_MAX);
  EXPECT_EQ(MulDiv(INT_MIN, INT_MAX, 1), INT_MIN);
}

}  // namespace
}  // namespace orbisol
