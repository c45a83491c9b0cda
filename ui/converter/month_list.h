// The group "Ce mois-ci": the holidays, events and vacations of the month, then the phases of the moon, a
// line each. A click, Enter or Space goes to the day.
//
//   CMonthList list;
//   list.Show(month);         // a month that was built
//   list.MarkDate(20240508);  // tints the first line of that day
//   connect(&list, &CMonthList::dateChosen, …);
//
// Kinds are told by the lettering: a holiday is bold, an event upright, a vacation italic, each in its color
// of the calendar where that can be read on the calendar's ground.
#pragma once

#include <vector>

#include "content/month_highlights.h"
#include "ui/toolkit/calendar_group.h"

class QListWidget;

namespace orbisol {

class CMonthList : public CCalendarGroup {
  Q_OBJECT

 public:
  static constexpr int kLeastLines = 4;  // minimumSizeHint() is the size with as many lines

  explicit CMonthList(QWidget* parent = nullptr);

  // Lists a month. If that changes no line, the current line keeps the keyboard.
  void Show(const MonthModel& month);
  // Tints the first line of a date and makes it the current line; without such a line no line is tinted.
  void MarkDate(PackedDate date);
  // Returns whether a public holiday on or after `date` is listed.
  bool NamesHolidayFrom(PackedDate date) const;
  // Returns the greatest height of the group, at most `height`, at which no line is cut; at least that of
  // kLeastLines lines.
  int HeightWithin(int height) const;
  // Draws and names the lines under settings that were changed.
  void SettingsChanged();

 signals:
  void dateChosen(PackedDate date);

 protected:
  void changeEvent(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Fill();
  void GoToTop();
  void FitToFont();
  int LineHeight() const;
  void Choose(int line);

  QListWidget* m_lines;
  std::vector<Highlight> m_highlights;  // by line
  PackedDate m_marked = 0;              // 0 is none
};

}  // namespace orbisol
