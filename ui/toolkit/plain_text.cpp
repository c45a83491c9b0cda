#include "ui/toolkit/plain_text.h"

#include <QStringList>

#include <algorithm>

#include "resources/strings.h"

namespace orbisol {

QString ToQString(std::u16string_view text) {
  return QString::fromUtf16(text.data(), static_cast<qsizetype>(text.size()));
}

std::u16string_view Utf16View(const QString& text) {
  return {reinterpret_cast<const char16_t*>(text.utf16()), static_cast<std::size_t>(text.size())};
}

QString TableText(int id) { return ToQString(StringText(id)); }

QString TablePiece(int id, int n) { return ToQString(Piece(StringText(id), u'|', n)); }

QString TableText(int id, std::initializer_list<FormatArgument> arguments) {
  return ToQString(FormatText(StringText(id), arguments));
}

QString MenuText(std::u16string_view plain) {
  return ToQString(plain).replace(QLatin1Char('&'), QLatin1String("&&"));
}

QString TipMarkup(const QString& plain) {
  if (plain.isEmpty()) return {};
  // The toolkit breaks lines of markup far too early, at a width of its own.
  constexpr qsizetype kLongestLine = 80;
  const QStringList lines = plain.split(QLatin1Char('\n'));
  const bool isShort = std::all_of(lines.begin(), lines.end(),
                                   [](const QString& line) { return line.size() <= kLongestLine; });
  const QString markup = plain.toHtmlEscaped().replace(QLatin1Char('\n'), QLatin1String("<br>"));
  return QLatin1String(isShort ? "<p style='white-space:pre'>" : "<p>") + markup + QLatin1String("</p>");
}

QString GroupedNumber(long long number) {
  QString text = QString::number(number);
  const qsizetype first = number < 0 ? 1 : 0;
  for (qsizetype i = text.size() - 3; i > first; i -= 3) text.insert(i, QLatin1Char(' '));
  return text;
}

}  // namespace orbisol
