#include "ui/converter/julian_group.h"

#include <QEvent>
#include <QVBoxLayout>

#include <algorithm>

#include "content/selected_date.h"
#include "core/date_text.h"
#include "resources/strings.h"
#include "ui/converter/group_parts.h"
#include "ui/toolkit/plain_text.h"
#include "ui/toolkit/selectable_label.h"

namespace orbisol {
namespace {

// Returns the width of the longest line that ends with a proleptic date.
int ProlepticWidth(const QFontMetrics& metrics) {
  int widest = 0;
  for (int month = 1; month <= 12; ++month) {
    const std::u16string date = DayMonthYear(Selected().dateOrder, 30, MonthName(month), kFirstYearShown);
    widest = std::max(widest, metrics.horizontalAdvance(TableText(kTextProlepticGregorian, {date})));
  }
  return widest;
}

}  // namespace

CJulianGroup::CJulianGroup(QWidget* parent)
    : CCalendarGroup(TableText(kTextJulianGroup), parent),
      m_julian(MakeDateLabel()),
      m_dayNumber(new CSelectableLabel),
      m_proleptic(new CSelectableLabel) {
  KeepRoomWhenHidden(m_proleptic);
  auto* const column = new QVBoxLayout;
  for (QLabel* const line : {m_julian, m_dayNumber, m_proleptic}) column->addWidget(line);
  SetGroupLayout(this, column);
  column->setSpacing(0);  // the lines are as close as those of one text
  FitToFont();
}

QString CJulianGroup::JulianText() const { return m_julian->text(); }

void CJulianGroup::FitToFont() { m_proleptic->setMinimumWidth(ProlepticWidth(m_proleptic->fontMetrics())); }

void CJulianGroup::changeEvent(QEvent* event) {
  CCalendarGroup::changeEvent(event);
  if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) FitToFont();
}

void CJulianGroup::Refresh() {
  const Date& date = Selected();
  const int dayNumber = date.DayNumber();
  m_julian->setText(ToQString(JulianLongDate(date, false)));
  m_dayNumber->setText(TableText(kTextJulianDayNumber, {dayNumber}));
  const bool isBeforeReform = dayNumber < Rules().firstGregorianDayNumber;
  m_proleptic->setText(isBeforeReform ? TableText(kTextProlepticGregorian, {ProlepticGregorianText(date)})
                                      : QString());
  m_proleptic->setVisible(isBeforeReform);
}

}  // namespace orbisol
