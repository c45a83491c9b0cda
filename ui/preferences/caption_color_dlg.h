// The choice of a color, with the name of what is colored as its title.
//
//   CCaptionColorDlg dialog(caption, color, this);
//   if (dialog.exec() == QDialog::Accepted) color = dialog.Chosen();
//
// The first eight of the user's own colors are those that a desktop would supply (content/calendar_look.h).
#pragma once

#include <QColorDialog>

#include "content/calendar_look.h"

namespace orbisol {

class CCaptionColorDlg : public QColorDialog {
 public:
  CCaptionColorDlg(const QString& caption, Color color, QWidget* parent);

  // Returns the color chosen; the one that the dialog began with until then.
  Color Chosen() const;
};

}  // namespace orbisol
