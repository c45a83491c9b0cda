// The elements that calendar files are made of: <tag>value</tag>, found by plain text search.
//
//   std::ptrdiff_t position = 0;
//   FindElement(u"<a><b>1</b></a>", u"a", position);       // u"<b>1</b>", position 15
//   GetElement(u"<n>J&amp;J</n>", u"n", position = 0);     // u"J&J"
//   MakeElement(u"J&J", u"n");                             // u"<n>J&amp;J</n>\r\n"
//
// Blocks, which hold elements, are taken as they stand; only the values at the leaves are escaped, once.
// Tags are met exactly as written: no attributes, no blanks inside, upper and lower case told apart.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace orbisol {

constexpr std::ptrdiff_t kNoElement = -1;  // the position after a missing or empty element: a walk ends

enum class TagKind { kOpening, kClosing };

// Returns where "<tag>" or "</tag>" begins at or after `from`; npos when it does not.
std::size_t FindTag(std::u16string_view source, std::u16string_view tag, TagKind kind, std::size_t from);

// Returns the text between the first "<tag>" at or after `position` and the next "</tag>", as it stands
// there. The position moves behind the element. It becomes kNoElement, and the result empty, when there is no
// such element, when it is not closed, when it is empty, or when the position lies outside the source.
std::u16string_view FindElement(std::u16string_view source, std::u16string_view tag,
                                std::ptrdiff_t& position);

// Returns the same as a value: unescaped, and `ifMissing` where there is none.
std::u16string GetElement(std::u16string_view source, std::u16string_view tag, std::ptrdiff_t& position,
                          std::u16string_view ifMissing = {});

// Returns one line with its line end. The value is escaped, numbers and texts alike.
std::u16string MakeElement(std::u16string_view value, std::u16string_view tag);

std::u16string Escape(std::u16string_view text);

// On purpose: "&amp;" comes first, so that "&amp;lt;" gives "<". What was read and written once stays as it
// is from then on.
std::u16string Unescape(std::u16string_view text);

}  // namespace orbisol
