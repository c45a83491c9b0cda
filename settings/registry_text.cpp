#include "settings/registry_text.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "core/text.h"

namespace orbisol {
namespace {

constexpr std::string_view kHeader = "Windows Registry Editor Version 5.00";
constexpr std::string_view kOurKey = "HKEY_CURRENT_USER\\SOFTWARE\\Corvalen\\Calendar";
constexpr std::string_view kUtf16Mark = "\xFF\xFE";
constexpr std::size_t kLineLength = 78;  // length at which a long value continues on the next line

bool SameName(std::string_view a, std::string_view b) {
  const NameLess less;
  return !less(a, b) && !less(b, a);
}

bool IsBlank(char c) { return c == ' ' || c == '\t'; }

std::string_view Trimmed(std::string_view text) {
  while (!text.empty() && IsBlank(text.front())) text.remove_prefix(1);
  while (!text.empty() && IsBlank(text.back())) text.remove_suffix(1);
  return text;
}

// Returns the number in a text of 1 to `maxDigits` hexadecimal digits, at most 8; nothing for any other text.
std::optional<std::uint32_t> HexNumber(std::string_view text, std::size_t maxDigits) {
  if (text.empty() || text.size() > maxDigits) return {};
  std::uint32_t number = 0;
  for (const char c : text) {
    if (HexDigit(c) < 0) return {};
    number = number << 4 | static_cast<std::uint32_t>(HexDigit(c));
  }
  return number;
}

struct DecodedText {
  std::string utf8;
  bool isLossless;
};

DecodedText Decoded(std::string_view bytes) {
  // All leading marks are dropped: a second one would be the first of the file when written again.
  while (bytes.starts_with(kUtf8Mark)) bytes.remove_prefix(kUtf8Mark.size());
  if (!bytes.starts_with(kUtf16Mark)) {
    std::string utf8 = ToUtf8(FromUtf8(bytes));
    const bool isLossless = utf8 == bytes;
    return {std::move(utf8), isLossless};
  }
  std::u16string text = FromUtf16Le(bytes);
  text.erase(0, text.find_first_not_of(u'\uFEFF'));
  std::string utf8 = ToUtf8(text);
  const bool isLossless = bytes.size() % 2 == 0 && FromUtf8(utf8) == text;
  return {std::move(utf8), isLossless};
}

std::vector<std::string_view> Lines(std::string_view text) {
  std::vector<std::string_view> lines;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    std::string_view line = text.substr(0, end);
    while (line.ends_with('\r')) line.remove_suffix(1);
    lines.push_back(line);
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return lines;
}

// Returns the text between quotes at the beginning of `rest`, unescaped, and moves `rest` past it.
std::optional<std::string> TakeQuoted(std::string_view& rest) {
  std::string text;
  for (std::size_t i = 1; i < rest.size(); ++i) {
    if (rest[i] == '"') {
      rest.remove_prefix(i + 1);
      return text;
    }
    if (rest[i] == '\\' && i + 1 < rest.size()) ++i;
    text += rest[i];
  }
  return {};
}

std::string Quoted(std::string_view text) {
  std::string quoted = "\"";
  for (const char c : text) {
    if (c == '"' || c == '\\') quoted += '\\';
    quoted += c;
  }
  return quoted += '"';
}

// Returns the bytes of "32,00,0a". Blanks may stand anywhere between, and a comma at the end.
std::optional<std::string> HexBytes(std::string_view text) {
  std::string bytes;
  text = Trimmed(text);
  while (!text.empty()) {
    const std::size_t comma = std::min(text.find(','), text.size());
    const std::optional<std::uint32_t> byte = HexNumber(Trimmed(text.substr(0, comma)), 2);
    if (!byte) return {};
    bytes += static_cast<char>(*byte);
    text = Trimmed(text.substr(std::min(comma + 1, text.size())));
  }
  return bytes;
}

bool TakeWord(std::string_view& rest, std::string_view word) {
  if (rest.size() < word.size() || !SameName(rest.substr(0, word.size()), word)) return false;
  rest.remove_prefix(word.size());
  return true;
}

// Returns the value after an equals sign; its continuation lines have been joined.
std::optional<StoredValue> ParseValue(std::string_view text) {
  if (text.starts_with('"')) {
    const std::optional<std::string> quoted = TakeQuoted(text);
    if (!quoted || !Trimmed(text).empty()) return {};
    return TextValue(FromUtf8(*quoted));
  }
  if (TakeWord(text, "dword:")) {
    const std::optional<std::uint32_t> number = HexNumber(Trimmed(text), 8);
    if (!number) return {};
    return DwordValue(*number);
  }
  if (!TakeWord(text, "hex")) return {};
  StoredValue value;
  if (text.starts_with('(')) {
    const std::size_t end = text.find(')');
    if (end == std::string_view::npos) return {};
    const std::optional<std::uint32_t> type = HexNumber(text.substr(1, end - 1), 8);
    if (!type) return {};
    value.type = *type;
    text.remove_prefix(end + 1);
  }
  if (!text.starts_with(':')) return {};
  std::optional<std::string> bytes = HexBytes(text.substr(1));
  if (!bytes) return {};
  value.bytes = std::move(*bytes);
  return value;
}

bool GoesOn(std::string_view line) { return Trimmed(line).ends_with('\\'); }

// Returns whether a line can continue a hexadecimal value, so that a value whose end is lost does not swallow
// the lines after it.
bool IsHexLine(std::string_view line) {
  return std::all_of(line.begin(), line.end(),
                     [](char c) { return HexDigit(c) >= 0 || c == ',' || c == '\\' || IsBlank(c); });
}

bool HasControl(std::u16string_view text) {
  return std::any_of(text.begin(), text.end(), [](char16_t unit) { return unit < 0x20 || unit == 0x7F; });
}

// Returns the text of a value if it can be written in quotes; nothing for a value to be written in bytes.
std::optional<std::string> QuotableText(const StoredValue& value) {
  if (value.type != kRegSz || value.bytes.size() < 2 || value.bytes.size() % 2 != 0) return {};
  std::u16string text = FromUtf16Le(value.bytes);
  if (text.back() != u'\0') return {};
  text.pop_back();
  std::string utf8 = ToUtf8(text);
  if (HasControl(text) || FromUtf8(utf8) != text) return {};  // a lone surrogate has no UTF-8
  return utf8;
}

std::string Hex(std::uint32_t number, int digits) {
  std::string text;
  for (int i = digits - 1; i >= 0; --i) text += "0123456789abcdef"[number >> 4 * i & 0xF];
  return text;
}

std::string ValueText(std::string_view name, const StoredValue& value) {
  std::string text = Quoted(name) + "=";
  if (const std::optional<std::string> quotable = QuotableText(value)) return text + Quoted(*quotable);
  if (value.type == kRegDword && value.bytes.size() == 4)
    return text + "dword:" + Hex(*DwordOf({{"", value}}, ""), 8);

  text += "hex";
  if (value.type != kRegBinary) {
    std::string type = Hex(value.type, 8);
    type.erase(0, std::min(type.find_first_not_of('0'), type.size() - 1));
    text += "(" + type + ")";
  }
  text += ":";
  std::size_t column = text.size();
  for (std::size_t i = 0; i < value.bytes.size(); ++i) {
    if (column + 3 > kLineLength) {
      text += "\\\n  ";
      column = 2;
    }
    text += Hex(static_cast<unsigned char>(value.bytes[i]), 2);
    if (i + 1 < value.bytes.size()) text += ',';
    column += 3;
  }
  return text;
}

}  // namespace

CRegistryText::CRegistryText(std::string_view bytes) {
  const DecodedText text = Decoded(bytes);
  m_isLossless = text.isLossless;
  const std::vector<std::string_view> lines = Lines(text.utf8);
  bool ours = false;
  for (std::size_t i = 0; i < lines.size(); ++i) {
    Item item;
    item.text = lines[i];
    std::string_view rest = Trimmed(lines[i]);
    if (rest.starts_with('[')) {
      ours = rest.ends_with(']') && SameName(Trimmed(rest.substr(1, rest.size() - 2)), kOurKey);
      if (ours) item.kind = Item::kOurKey;
    } else if (ours && rest.starts_with('"')) {
      const std::optional<std::string> name = TakeQuoted(rest);
      rest = Trimmed(rest);
      if (name && !name->empty() && rest.starts_with('=')) {
        item.kind = Item::kOurValue;
        item.name = *name;
        std::string value(Trimmed(rest.substr(1)));
        std::string_view word = value;
        if (TakeWord(word, "hex")) {
          while (GoesOn(value)) {
            value.resize(value.rfind('\\'));
            if (i + 1 == lines.size() || !IsHexLine(lines[i + 1])) break;
            item.text.append("\n").append(lines[++i]);
            value.append(Trimmed(lines[i]));
          }
        }
        item.value = ParseValue(value);
      }
    }
    m_items.push_back(std::move(item));
  }
}

StoredValues CRegistryText::Values() const {
  StoredValues values;
  for (const Item& item : m_items) {
    if (item.kind != Item::kOurValue) continue;
    if (item.value)
      values.insert_or_assign(item.name, *item.value);
    else
      values.erase(item.name);  // the later line counts, even if it holds no value
  }
  return values;
}

bool CRegistryText::Set(std::string_view name, const StoredValue& value) {
  if (name.empty() || HasControl(FromUtf8(name)) || ToUtf8(FromUtf8(name)) != name) return false;

  const auto last = std::find_if(m_items.rbegin(), m_items.rend(), [&](const Item& item) {
    return item.kind == Item::kOurValue && SameName(item.name, name);
  });
  if (last != m_items.rend()) {
    if (last->value != value) *last = {ValueText(last->name, value), Item::kOurValue, last->name, value};
    return true;
  }

  auto behind = std::find_if(m_items.rbegin(), m_items.rend(), [](const Item& item) {
                  return item.kind != Item::kOther;
                }).base();
  if (behind == m_items.begin()) {  // there is no line of our key yet
    if (m_items.empty()) m_items.push_back({std::string(kHeader), Item::kOther, "", {}});
    m_items.push_back({"", Item::kOther, "", {}});
    m_items.push_back({"[" + std::string(kOurKey) + "]", Item::kOurKey, "", {}});
    behind = m_items.end();
  }
  m_items.insert(behind, {ValueText(name, value), Item::kOurValue, std::string(name), value});
  return true;
}

void CRegistryText::Delete(std::string_view name) {
  std::vector<Item> kept;
  for (Item& item : m_items) {
    if (item.kind != Item::kOurValue || !SameName(item.name, name))
      kept.push_back(std::move(item));
    else if (!kept.empty() && GoesOn(kept.back().text))
      kept.push_back({";", Item::kOther, "", {}});  // keeps the next line from continuing that value
  }
  m_items = std::move(kept);
}

std::string CRegistryText::Bytes() const {
  std::string bytes;
  for (const Item& item : m_items) bytes.append(item.text).append("\n");
  return bytes;
}

}  // namespace orbisol
