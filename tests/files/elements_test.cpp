#include "files/elements.h"

#include <gtest/gtest.h>

namespace orbisol {
namespace {

constexpr struct {
  const char* what;
  std::u16string_view source;
  std::ptrdiff_t from;
  std::u16string_view value;  // "-" is the default
  std::ptrdiff_t behind;
} kElements[] = {
    {"plain", u"x<a>1</a>y", 0, u"1", 9},
    {"from the middle of the opening tag", u"<a>1</a><a>2</a>", 1, u"2", 16},
    {"empty", u"<a></a><a>2</a>", 0, u"-", kNoElement},
    {"not closed", u"<a>1<a>2", 0, u"-", kNoElement},
    {"closed before it begins", u"</a><a>1", 0, u"-", kNoElement},
    {"blanks are a value", u"<a> </a>", 0, u" ", 8},
    {"the first closing tag ends it", u"<a>1<a>2</a>3</a>", 0, u"1<a>2", 12},
    {"another name that begins alike", u"<ab>1</ab><a>2</a>", 0, u"2", 18},
    {"attribute, blank, other case", u"<a b=\"\">1</a><a >2</a><A>3</A>", 0, u"-", kNoElement},
    {"brackets before the tag", u"<<a>1<</a>", 0, u"1<", 10},
    {"no source", u"", 0, u"-", kNoElement},
    {"source ends in the tag", u"<a", 0, u"-", kNoElement},
    {"position at the end", u"<a>1</a>", 8, u"-", kNoElement},
    {"position behind the end", u"<a>1</a>", 99, u"-", kNoElement},
    {"position after a walk", u"<a>1</a>", kNoElement, u"-", kNoElement},
};

TEST(ElementsTest, AnElementIsFoundByItsExactTags) {
  for (const auto& row : kElements) {
    SCOPED_TRACE(row.what);
    std::ptrdiff_t position = row.from;
    EXPECT_EQ(GetElement(row.source, u"a", position, u"-"), row.value);
    EXPECT_EQ(position, row.behind);
  }
}

TEST(ElementsTest, BlocksKeepTheirEntitiesAndValuesLoseThemOnce) {
  const std::u16string_view source = u"<b><n>&lt;/n&gt; &amp;amp; &quot;&#39;</n></b>";
  std::ptrdiff_t position = 0;
  const std::u16string_view block = FindElement(source, u"b", position);
  EXPECT_EQ(block, u"<n>&lt;/n&gt; &amp;amp; &quot;&#39;</n>");
  position = 0;
  EXPECT_EQ(GetElement(block, u"n", position), u"</n> &amp; \"'");
}

TEST(ElementsTest, ALineIsEscapedAndEndsInCrLf) {
  EXPECT_EQ(MakeElement(u"<J&J> \"d'ici\"", u"name"),
            u"<name>&lt;J&amp;J&gt; &quot;d&#39;ici&quot;</name>\r\n");
}

// A text that spells an entity is the one exception to coming back as it was.
TEST(ElementsTest, ATextThatSpellsAnEntityLosesItInOnePassAndIsThenStable) {
  EXPECT_EQ(Unescape(Escape(u"a & b < c &lt d; &am")), u"a & b < c &lt d; &am");
  EXPECT_EQ(Unescape(Escape(u"x &lt; y")), u"x < y");
  EXPECT_EQ(Unescape(Escape(u"x < y")), u"x < y");
  EXPECT_EQ(Unescape(u"&amp;amp;lt;"), u"&amp;lt;") << "only one pass, and & first";
}

}  // namespace
}  // namespace orbisol
