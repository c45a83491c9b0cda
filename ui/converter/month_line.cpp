#include "ui/converter/month_line.h"

#include <QPainter>

#include "core/date_text.h"
#include "resources/strings.h"
#include "settings/display_settings.h"
#include "ui/toolkit/calendar_group.h"
#include "ui/toolkit/colors.h"
#include "ui/toolkit/plain_text.h"

namespace orbisol {
namespace {

constexpr int kInset = 2;  // pixels above and below the text together, and at each side
constexpr int kGap = 8;    // pixels between the number of the day and the text

HighlightKind KindOf(const QModelIndex& line) {
  return static_cast<HighlightKind>(line.data(CMonthLine::kKindRole).toInt());
}

QFont Lettering(QFont font, HighlightKind kind) {
  if (kind == HighlightKind::kHoliday) font.setBold(true);
  if (kind == HighlightKind::kVacation) font.setItalic(true);
  return font;
}

QColor InkOf(HighlightKind kind, const QPalette& colors) {
  constexpr ColorIndex kInks[] = {kHolidayText, kEventText, kVacationText, kColorCalHeader};
  return LegibleOn(colors.color(QPalette::Window),
                   ToQColor(Display().ColorAt(kInks[static_cast<int>(kind)])));
}

}  // namespace

QString LineText(const Highlight& highlight) {
  if (highlight.lastDate == highlight.date) return ToQString(highlight.text);
  return TableText(kTextDaysOfPeriod,
                   {highlight.text, Unpack(highlight.date).day, Unpack(highlight.lastDate).day});
}

QString SpokenLine(const Highlight& highlight) {
  const QString line =
      TableText(kTextSpokenLine, {LongDate(Date(highlight.date), false), Utf16View(LineText(highlight))});
  if (highlight.kind == HighlightKind::kMoon) return line;
  return line + QLatin1String(", ") + TablePiece(kTextDayKinds, static_cast<int>(highlight.kind));
}

QSize CMonthLine::sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const {
  return {0, option.fontMetrics.height() + kInset};
}

void CMonthLine::paint(QPainter* painter, const QStyleOptionViewItem& option,
                       const QModelIndex& index) const {
  const bool hasKeyboard = option.state.testFlag(QStyle::State_HasFocus);
  const bool isTinted = option.state.testFlag(QStyle::State_MouseOver) || index.data(kMarkedRole).toBool();
  QColor ground = option.palette.color(QPalette::Highlight);
  constexpr float kTint = 0.14F;
  if (!hasKeyboard) {
    ground = LegibleOn(option.palette.color(QPalette::Window),
                       ground);  // a dark tint is not seen on a dark ground
    ground.setAlphaF(isTinted ? kTint : 0.0F);
  }
  painter->fillRect(option.rect, ground);

  const HighlightKind kind = KindOf(index);
  const QColor light = option.palette.color(QPalette::HighlightedText);
  const QRect line = option.rect.adjusted(kInset, 0, -kInset, 0);
  const QRect number(line.left(), line.top(), option.fontMetrics.horizontalAdvance(QLatin1String("30")),
                     line.height());
  painter->setFont(option.font);
  painter->setPen(hasKeyboard ? light : option.palette.color(QPalette::WindowText));
  painter->drawText(number, Qt::AlignRight | Qt::AlignVCenter | Qt::TextDontClip,
                    index.data(kDayRole).toString());

  const QRect text = line.adjusted(number.width() + kGap, 0, 0, 0);
  painter->setFont(Lettering(option.font, kind));
  if (!hasKeyboard) painter->setPen(InkOf(kind, option.palette));
  painter->drawText(text, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                    painter->fontMetrics().elidedText(index.data().toString(), Qt::ElideRight, text.width()));
}

}  // namespace orbisol
