// The header above the month: month and year of the selected date between two arrows, its long form and its
// place in the civil year below, the eras of years before the first above.
//
//   CHeaderWnd header(parent);
//   connect(&header, &CHeaderWnd::dateChanged, …);
//   Selected() = …;     // elsewhere the date was moved:
//   header.Refresh();
//
// A click on an arrow steps by a month, with Ctrl by a year, with Shift by ten, with both by a hundred; the
// right button goes to the end of the range. The month opens a menu, the year an editor with a spin control.
// With the keyboard, Tab and the left and right arrows reach the four, Enter and Space press them. The wheel
// steps by a month, with Ctrl by a year.
#pragma once

#include <QFont>
#include <QPointer>
#include <QWidget>

#include "content/selected_date.h"
#include "ui/header/header_layout.h"
#include "ui/toolkit/wheel_steps.h"

namespace orbisol {

class CHeaderPart;
class CYearEdit;

class CHeaderWnd : public QWidget {
  Q_OBJECT

 public:
  explicit CHeaderWnd(QWidget* parent = nullptr);

  // Shows the selected date, the colors, the font and the calendar rules. While the year is being typed, its
  // field is not rewritten.
  void Refresh();

  bool IsEditingYear() const;
  void CloseYearEditor();

  const HeaderLayout& Places() const { return m_layout; }

  // Return the texts of the title and the bands.
  QString TitleText() const;
  QString LeftText() const;       // bottom left: the long date
  QString RightText() const;      // bottom right: week, day of the civil year, days left in it
  QString EraText() const;        // top right; empty from year 1 on
  QString CivilYearText() const;  // top left; empty where civil years begin on 1 January

  // Returns the size below which texts of the bottom band are cut, or bands and title overlap. The title is
  // never smaller than the text of dialogs.
  QSize minimumSizeHint() const override;

 signals:
  // Tells that the user changed the selected date here.
  void dateChanged(DateMove move);

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;

 private:
  void TakeDate();
  void FitTitle();
  void FitEditor();
  void LayOut();
  void SetPointedAt(HeaderPart part);
  void PaintPointedAt(QPainter& painter, const QColor& ink) const;
  void Press(HeaderPart part, Qt::KeyboardModifiers modifiers);
  void Step(bool isForward, Qt::KeyboardModifiers modifiers);
  void OpenMonthMenu();
  void SelectMonth(int month);
  void OpenYearEditor();
  void SetYear(int year);
  void YearEditorClosed(bool byEnter);
  void GiveFocusBack();
  void Changed(DateMove move);
  QString YearTip() const;
  QString CountsTip() const;
  QString EraTip() const;
  QRect RightEnd(const Rect& band, const QString& text) const;
  QString TipAt(QPoint position, QRect* area) const;
  void UpdateNames();

  HeaderLayout m_layout;
  bool m_hasSize = false;  // whether a size was given; until then no layout is computed
  QFont m_titleFont;
  QFont m_fittedFace;  // face, and below it size of the header, for which m_titleFont was made
  QSize m_fittedSize;
  int m_band = 0;  // height of the bands
  QString m_monthName;
  int m_shownYear = 0;                         // civil year in the title
  HeaderPart m_pointedAt = HeaderPart::kNone;  // part under the pointer
  CWheelSteps m_wheel;
  CHeaderPart* m_previousPart = nullptr;
  CHeaderPart* m_monthPart = nullptr;
  CHeaderPart* m_yearPart = nullptr;
  CHeaderPart* m_nextPart = nullptr;
  CYearEdit* m_year = nullptr;
  QPointer<QWidget> m_focusBefore;  // widget that had the focus when the year editor was opened
  bool m_isTyping = false;          // whether a year was entered since the editor was opened
  bool m_isEnterDown = false;       // whether the Enter that closed the editor is still held down
};

}  // namespace orbisol
