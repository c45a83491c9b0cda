// The preview beside the pages of the preferences: a month as the main window would paint it with the
// settings being edited.
//
//   CPrefCalWin preview(edited);
//   edited.display.grid = false;
//   preview.SettingsChanged();   // shows it with the next paint
#pragma once

#include <QWidget>

#include "ui/painting/background_picture.h"
#include "ui/painting/month_painter.h"
#include "ui/preferences/preview_elements.h"
#include "ui/preferences/sample_month.h"

namespace orbisol {

class CPrefCalWin : public QWidget {
  Q_OBJECT

 public:
  // `edited` outlives the preview, which reads it after each SettingsChanged().
  explicit CPrefCalWin(const Preferences& edited, QWidget* parent = nullptr);

  void SetSample(SampleKind kind);
  // Sets whether its elements can be clicked, which a tip and the pointer then say.
  void SetClickable(bool isClickable);
  void SettingsChanged();

  // Returns the element at a position; kNoElement between them.
  PreviewElement ElementAt(QPoint position);

  // Returns what is shown, the changes made since the last paint included.
  const SampleMonth& Sample();
  // Returns the cell of a day in pixels of the window.
  QRect DayRect(int month, int day);

  QSize sizeHint() const override;

 signals:
  void elementClicked(orbisol::PreviewElement element, Qt::MouseButton button);  // left or right

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;

 private:
  void Prepare();
  QRect TitleRect() const;

  const Preferences& m_edited;
  SampleKind m_kind = SampleKind::kReform;
  SampleMonth m_sample;
  bool m_isOutdated = true;
  bool m_isClickable = false;
  CMonthPainter m_painter;
  CBackgroundPicture m_background;
  bool m_hadPicture = false;  // switch and path that the picture was last loaded for
  FixedText<kMaxPathUnits + 1> m_hadPath;
};

}  // namespace orbisol
