#include "files/elements.h"

#include "core/text.h"

namespace orbisol {

namespace {

struct Entity {
  char16_t character;
  std::u16string_view text;
};
constexpr Entity kEntities[] = {
    // reading replaces them in this order, "&amp;" first
    {u'&', u"&amp;"}, {u'<', u"&lt;"}, {u'>', u"&gt;"}, {u'"', u"&quot;"}, {u'\'', u"&#39;"},
};

constexpr std::size_t kNotFound = std::u16string_view::npos;

}  // namespace

std::size_t FindTag(std::u16string_view source, std::u16string_view tag, TagKind kind, std::size_t from) {
  const std::size_t slash = kind == TagKind::kClosing ? 1 : 0;
  for (std::size_t at = source.find(u'<', from); at != kNotFound; at = source.find(u'<', at + 1)) {
    std::u16string_view rest = source.substr(at + 1);
    if (slash == 1 && !rest.starts_with(u'/')) continue;
    rest.remove_prefix(slash);
    if (rest.size() > tag.size() && rest[tag.size()] == u'>' && rest.starts_with(tag)) return at;
  }
  return kNotFound;
}

std::u16string_view FindElement(std::u16string_view source, std::u16string_view tag,
                                std::ptrdiff_t& position) {
  const std::ptrdiff_t from = position;
  position = kNoElement;
  if (from < 0) return {};
  const std::size_t opening = FindTag(source, tag, TagKind::kOpening, static_cast<std::size_t>(from));
  if (opening == kNotFound) return {};
  const std::size_t start = opening + tag.size() + 2;
  const std::size_t closing = FindTag(source, tag, TagKind::kClosing, start);
  // On purpose: an empty element ends a walk like a missing one.
  if (closing == kNotFound || closing == start) return {};
  position = static_cast<std::ptrdiff_t>(closing + tag.size() + 3);
  return source.substr(start, closing - start);
}

std::u16string GetElement(std::u16string_view source, std::u16string_view tag, std::ptrdiff_t& position,
                          std::u16string_view ifMissing) {
  const std::u16string_view value = FindElement(source, tag, position);
  return Unescape(position == kNoElement ? ifMissing : value);
}

std::u16string MakeElement(std::u16string_view value, std::u16string_view tag) {
  std::u16string line;
  line.append(u"<").append(tag).append(u">");
  line += Escape(value);
  line.append(u"</").append(tag).append(u">\r\n");
  return line;
}

std::u16string Escape(std::u16string_view text) {
  std::u16string out;
  out.reserve(text.size());
  for (const char16_t unit : text) {
    const Entity* entity = std::begin(kEntities);
    while (entity != std::end(kEntities) && entity->character != unit) ++entity;
    if (entity == std::end(kEntities)) {
      out += unit;
    } else {
      out += entity->text;
    }
  }
  return out;
}

std::u16string Unescape(std::u16string_view text) {
  std::u16string out(text);
  if (text.find(u'&') == kNotFound) return out;
  for (const Entity& entity : kEntities)
    out = ReplaceAll(out, entity.text, std::u16string_view(&entity.character, 1));
  return out;
}

}  // namespace orbisol
