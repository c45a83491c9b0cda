#include "settings/settings_store.h"

#include <algorithm>

namespace orbisol {
namespace {

constexpr char Lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c; }

const StoredValue* Find(const StoredValues& values, std::string_view name) {
  const auto found = values.find(name);
  return found == values.end() ? nullptr : &found->second;
}

std::uint32_t Byte(std::string_view bytes, std::size_t i) { return static_cast<unsigned char>(bytes[i]); }

}  // namespace

bool NameLess::operator()(std::string_view a, std::string_view b) const {
  return std::lexicographical_compare(a.begin(), a.end(), b.begin(), b.end(),
                                      [](char x, char y) { return Lower(x) < Lower(y); });
}

StoredValue TextValue(std::u16string_view text) {
  StoredValue value{kRegSz, {}};
  const auto add = [&](char16_t unit) {
    value.bytes += static_cast<char>(unit & 0xFF);
    value.bytes += static_cast<char>(unit >> 8);
  };
  for (const char16_t unit : text) add(unit);
  add(u'\0');
  return value;
}

StoredValue DwordValue(std::uint32_t number) {
  StoredValue value{kRegDword, {}};
  for (int i = 0; i < 4; ++i) value.bytes += static_cast<char>(number >> 8 * i & 0xFF);
  return value;
}

StoredValue BinaryValue(std::span<const std::uint8_t> bytes) {
  return {kRegBinary, std::string(bytes.begin(), bytes.end())};
}

std::u16string FromUtf16Le(std::string_view bytes) {
  std::u16string text;
  for (std::size_t i = 0; i + 1 < bytes.size(); i += 2)
    text += static_cast<char16_t>(Byte(bytes, i) | Byte(bytes, i + 1) << 8);
  return text;
}

std::optional<std::uint32_t> DwordOf(const StoredValues& values, std::string_view name) {
  const StoredValue* const value = Find(values, name);
  if (value == nullptr || value->type != kRegDword || value->bytes.size() != 4) return {};
  std::uint32_t number = 0;
  for (std::size_t i = 4; i-- > 0;) number = number << 8 | Byte(value->bytes, i);
  return number;
}

std::optional<std::u16string> TextOf(const StoredValues& values, std::string_view name,
                                     std::size_t maxUnits) {
  const StoredValue* const value = Find(values, name);
  if (value == nullptr || (value->type != kRegSz && value->type != kRegExpandSz)) return {};
  const std::string& bytes = value->bytes;
  if (bytes.empty()) return u"";
  if (bytes.size() % 2 != 0 || bytes.size() / 2 - 1 > maxUnits) return {};
  const std::u16string text = FromUtf16Le(bytes);
  if (text.back() != u'\0') return {};
  return text.substr(0, text.find(u'\0'));
}

std::optional<std::vector<std::uint8_t>> BinaryOf(const StoredValues& values, std::string_view name) {
  const StoredValue* const value = Find(values, name);
  if (value == nullptr || value->type != kRegBinary) return {};
  return std::vector<std::uint8_t>(value->bytes.begin(), value->bytes.end());
}

}  // namespace orbisol
