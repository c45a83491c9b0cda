#include "ui/painting/month_fonts.h"

#include <QFontMetrics>
#include <QString>
#include <QStringList>

#include <algorithm>

#include "ui/toolkit/plain_text.h"
#include "ui/painting/month_texts.h"

namespace orbisol {
namespace {

int WidestOf(const QStringList& texts, const QFont& font) {
  const QFontMetrics metrics(font);
  int widest = 0;
  for (const QString& text : texts) widest = std::max(widest, metrics.horizontalAdvance(text));
  return widest;
}

// `font` in the largest size, at most its own, at which all the texts fit into `room`.
QFont FontOfWidth(QFont font, const QStringList& texts, int room) {
  const int widest = WidestOf(texts, font);
  if (widest <= room) return font;
  const auto fits = [&](int size) {
    font.setPixelSize(size);
    return WidestOf(texts, font) <= room;
  };
  // Widths grow with the size, nearly evenly.
  const int largest = font.pixelSize();
  int size = std::max(1, largest * std::max(room, 1) / widest);
  while (size > 1 && !fits(size)) --size;
  while (size < largest && fits(size + 1)) ++size;
  font.setPixelSize(size);
  return font;
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
  // Each size that is tried is loaded: most faces are about a sixth higher than their size.
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
  QStringList names;
  for (int column = 0; column < kColumns; ++column) names << ColumnName(column, layout.firstCell);
  fonts.names = FontOfWidth(fonts.upright, names, layout.NameRect(0).Width());
  constexpr int kWeekMargin = 1;
  fonts.small = FontOfWidth(FontOfHeight(fonts.upright, layout.SmallFontHeight()), {QStringLiteral("00")},
                            layout.WeekNumberRect(1).Width() - 2 * kWeekMargin);
  return fonts;
}

}  // namespace orbisol
