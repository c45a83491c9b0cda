#include "ui/painting/month_fonts.h"

#include <QFontInfo>
#include <QFontMetrics>

#include <algorithm>

#include "core/integers.h"
#include "resources/strings.h"
#include "ui/painting/month_texts.h"
#include "ui/toolkit/plain_text.h"

namespace orbisol {
namespace {

constexpr int kLeastNamePixels = 11;  // font size below which weekday names are abbreviated
constexpr int kLeastWeekPixels = 8;   // font size below which two digits cannot be read

template <class Texts>
int WidestOf(const Texts& texts, const QFontMetrics& metrics) {
  int widest = 0;
  for (const QString& text : texts) widest = std::max(widest, metrics.horizontalAdvance(text));
  return widest;
}

// Returns `font` in the largest size, at most its own, at which all the texts fit into `room`.
template <class Texts>
QFont FontOfWidth(QFont font, const Texts& texts, int room) {
  const int widest = WidestOf(texts, QFontMetrics(font));
  if (widest <= room) return font;
  const auto fits = [&](int size) {
    font.setPixelSize(size);
    return WidestOf(texts, QFontMetrics(font)) <= room;
  };
  // Widths grow nearly in proportion to the size, which gives a first guess.
  const int largest = font.pixelSize();
  int size = std::max(1, largest * std::max(room, 1) / widest);
  while (size > 1 && !fits(size)) --size;
  while (size < largest && fits(size + 1)) ++size;
  font.setPixelSize(size);
  return font;
}

std::array<QString, kColumns> NamesOfColumns(int firstCell, QString (*nameOf)(int column, int firstCell)) {
  std::array<QString, kColumns> names;
  for (int column = 0; column < kColumns; ++column)
    names[static_cast<std::size_t>(column)] = nameOf(column, firstCell);
  return names;
}

}  // namespace

QFont FontOfHeight(QFont font, int height) {
  const auto fits = [&](int size) {
    font.setPixelSize(size);
    return QFontMetrics(font).height() <= height;
  };
  if (height <= 1) {
    font.setPixelSize(1);
    return font;
  }
  // Trying a size loads the font. Most faces are about a sixth higher than their size, so few are tried.
  const int guess = std::max(1, height * 6 / 7);
  font.setPixelSize(guess);
  int size = std::max(1, guess * height / std::max(QFontMetrics(font).height(), 1));
  while (size > 1 && !fits(size)) --size;
  while (size < height && fits(size + 1)) ++size;
  font.setPixelSize(size);
  return font;
}

QFont CalendarFont(const DisplaySettings& settings, const QFont& dialogFont) {
  QFont font = settings.fontName.IsEmpty() ? dialogFont : QFont(ToQString(settings.fontName.View()));
  font.setWeight(static_cast<QFont::Weight>(std::clamp(settings.fontWeight, 1, 1000)));
  font.setItalic(false);
  return font;
}

MonthFonts MakeMonthFonts(const MonthLayout& layout, const DisplaySettings& settings,
                          const QFont& dialogFont) {
  MonthFonts fonts;
  fonts.upright = FontOfHeight(CalendarFont(settings, dialogFont), layout.FontHeight());
  fonts.italic = fonts.upright;
  fonts.italic.setItalic(true);

  // An eighth of the column stays free, so that no name touches its lines.
  const int room = std::min(layout.NameRect(0).Width(), layout.columnWidth - layout.columnWidth / 8);
  const int least = std::max(kLeastNamePixels, QFontInfo(dialogFont).pixelSize()) * layout.lineScale;
  fonts.nameTexts = NamesOfColumns(layout.firstCell, ColumnName);
  fonts.names = FontOfWidth(fonts.upright, fonts.nameTexts, room);
  if (fonts.names.pixelSize() < std::min(least, fonts.upright.pixelSize())) {
    fonts.nameTexts = NamesOfColumns(layout.firstCell, ColumnAbbrev);
    QFont dialogSize = fonts.upright;
    dialogSize.setPixelSize(std::min(least, fonts.upright.pixelSize()));
    fonts.names = FontOfWidth(dialogSize, fonts.nameTexts, room);
  }

  const QFont small = FontOfHeight(fonts.upright, layout.SmallFontHeight());
  const int leastWeek = std::min(kLeastWeekPixels * layout.lineScale, std::max(layout.rowHeight * 6 / 7, 1));
  const auto ofWeeks = [&](const QString& widest) {
    QFont font = FontOfWidth(small, std::array{widest}, layout.WeekNumberRect(1).Width());
    font.setPixelSize(std::max(font.pixelSize(), leastWeek));
    return font;
  };
  fonts.small = ofWeeks(QStringLiteral("00"));
  fonts.weekTitle = ofWeeks(TableText(kTextWeek));
  return fonts;
}

QSize LeastMonthSize(const QFont& dialogFont) {
  const QFontMetrics metrics(dialogFont);
  const int name = WidestOf(NamesOfColumns(1, ColumnAbbrev), metrics);
  // A column is 4 2/3 times as wide as the font's size, and wide enough for a name with an eighth left free.
  const int column = std::max(MulDiv(QFontInfo(dialogFont).pixelSize(), 14, 3), (name * 8 + 6) / 7);
  const int row = (metrics.height() * 9 + 3) / 4;
  return {column * kColumns, row * (kWeekRows + 1)};
}

}  // namespace orbisol
