#include "ui/converter/notable_days.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include "content/selected_date.h"
#include "core/republican.h"
#include "resources/strings.h"
#include "ui/converter/group_parts.h"
#include "ui/toolkit/calendar_group.h"
#include "ui/toolkit/plain_text.h"

namespace orbisol {

CNotableDays::CNotableDays(QWidget* parent) : QWidget(parent) {
  const auto make = [this](int textId, auto date) {
    QPushButton* const button = MakeButton(textId);
    connect(button, &QPushButton::clicked, this, [this, date] { emit dateChosen(date()); });
    return button;
  };
  auto* const show = new QVBoxLayout;
  show->addWidget(make(kTextToday, [] { return Date::Today().Packed(); }));
  show->addStretch(1);
  auto* const first = new QGridLayout;
  first->addWidget(make(kTextFirstDayRepublican, [] { return kRepublicanEpoch; }), 0, 0);
  first->addWidget(make(kTextFirstDayGregorian, [] { return Rules().startGregorian; }), 0, 1);
  first->addWidget(make(kTextFirstDayEra, [] { return kFirstDayOfEra; }), 1, 0);
  first->addWidget(make(kTextFirstDayJulian, [] { return kFirstJulianDay; }), 1, 1);

  auto* const showGroup = new CCalendarGroup(TableText(kTextShowGroup));
  SetGroupLayout(showGroup, show);
  auto* const firstGroup = new CCalendarGroup(TableText(kTextFirstDayGroup));
  SetGroupLayout(firstGroup, first);
  auto* const row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(6);
  row->addWidget(showGroup);
  row->addWidget(firstGroup, 1);
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
}

}  // namespace orbisol
