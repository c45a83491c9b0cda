// The names of the days, written in their cells like on a wall calendar: a small number at the upper left,
// and below it one line a name. CMonthPainter owns one and asks it for all that is different with texts.
//
//   CCellTexts texts;
//   texts.SetUp(layout, settings, font());
//   texts.SetNames(model, content);
//   if (texts.AreShown()) texts.Paint(painter, cell);
//
// Names are laid out once for a month and a size. In the header of MonthLayout stands where all is placed.
#pragma once

#include <QColor>
#include <QFont>
#include <QImage>
#include <QString>

#include <array>
#include <vector>

#include "content/day_names.h"
#include "settings/display_settings.h"
#include "ui/painting/month_layout.h"

class QPainter;

namespace orbisol {

// Returns the color that lies over the ground of today's cell on a screen: strong enough to be found at a
// glance, weaker than a holiday's fill.
QColor TodayTint();

class CCellTexts {
 public:
  // Forgets all names.
  void SetUp(const MonthLayout& layout, const DisplaySettings& settings, const QFont& dialogFont);
  // Sets the picture behind the rows, null for none; texts are as dark or light as can be read on it.
  void SetPicture(const QImage& picture);

  // Returns whether the settings ask for texts and the cells have room for two lines.
  bool AreShown() const { return m_lineCount > 0; }

  // Takes the names of a month from what it was built with. Does nothing while texts are not shown, or if the
  // cells are those of the call before.
  void SetNames(const MonthModel& month, const CalendarContent& content);

  // Draws the number of a day in the painter's pen. Returns its rectangle.
  QRect PaintNumber(QPainter& painter, int cell, int day, bool isItalic) const;
  // Draws the lines of a cell; none where it has none. Today's stand on TodayTint().
  void Paint(QPainter& painter, int cell, bool isToday) const;

  // Returns the rectangle around the circle that marks a day.
  QRect CircleRect(int cell, int day) const;

 private:
  struct Line {
    QString text;
    QPoint origin;  // left end of the baseline
    QColor color;
    QColor todayColor;  // where the cell is today's
    bool isMedium = false;
  };
  using Lines = std::vector<Line>;

  QRect NumberRect(int cell, int day) const;
  Lines LinesOf(int cell, const DayCell& day, const DayNames& names) const;
  QColor GroundOf(int cell, const DayCell& day, bool isToday) const;
  QColor PictureColor(int cell) const;

  MonthLayout m_layout;
  DisplaySettings m_settings;
  int m_lineHeight = 0;
  int m_lineCount = 0;  // 0 where no texts are shown
  QFont m_number;
  QFont m_italic;
  QFont m_plain;
  QFont m_medium;
  QImage m_picture;                         // small copy of the picture behind the rows
  std::array<DayCell, kCellCount> m_cells;  // cells that m_lines were made for
  bool m_hasLines = false;
  std::array<Lines, kCellCount> m_lines;
};

}  // namespace orbisol
