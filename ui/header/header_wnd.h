// The header above the month: month and year of the selected date between two arrows, its long form and its
// place in the civil year below, the eras of years before the first above.
//
//   CHeaderWnd header(parent);
//   connect(&header, &CHeaderWnd::dateChanged, …);
//   Selected() = …;     // the date was moved elsewhere:
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

  // Shows the selected date, the colors, the font and the calendar rules. While the year is being typed its
  // box is left alone.
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

  // Returns the size below which texts of the bottom band are cut, or bands and title, which is never smaller
  // than the text of the dialogs, cover one another.
  QSize minimumSizeHint() const override;

 signals:
  // The selected date was changed here, by the user's hand.
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
  QString TipAt(QPoint position, QRect* area) const;
  void UpdateNames();

  HeaderLayout m_layout;
  bool m_hasSize = false;  // whether a size was given to it; until then nothing is laid out
  QFont m_titleFont;
  QFont m_fittedFace;  // face and size of the header that the font of the title was made for
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
