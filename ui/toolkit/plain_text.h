// Conversion of texts to the toolkit's. Names and titles are plain text everywhere: what looks like markup in
// one is shown as it was written.
//
//   menu->addAction(MenuText(MonthName(5)));
//   QToolTip::showText(point, TipMarkup(text), this);
#pragma once

#include <QString>

#include <string>
#include <string_view>

#include "core/text.h"

namespace orbisol {

QString ToQString(std::u16string_view text);

// Returns a view that lives as long as the text it looks into.
std::u16string_view Utf16View(const QString& text);

// Returns an entry of the string table (resources/strings.h).
QString TableText(int id);

// Returns piece n, from 0, of an entry that is a list.
QString TablePiece(int id, int n);

// Returns an entry with its placeholders filled in.
QString TableText(int id, std::initializer_list<FormatArgument> arguments);

// Returns a text for a menu, in which "&" stands for itself.
QString MenuText(std::u16string_view plain);

// Returns a text for a tool tip, which may read markup: the same text, its lines kept. Empty for an empty
// text.
QString TipMarkup(const QString& plain);

// Returns the digits in groups of three with a plain space between them, whatever the locale: "-1 234".
QString GroupedNumber(long long number);

}  // namespace orbisol
