#include "ui/preferences/caption_color_dlg.h"

#include "ui/toolkit/colors.h"

namespace orbisol {
namespace {

constexpr Color kDesktopColors[] = {
    kButtonFaceColor,      Rgb(0xE3, 0xE7, 0xEB),  // light edge
    Rgb(0xA0, 0xA9, 0xB3),                         // shadow
    Rgb(0xAB, 0xB2, 0xBA),                         // workspace
    kWindowColor,          kGreyTextColor,        kHighlightColor, kWindowTextColor,
};

}  // namespace

CCaptionColorDlg::CCaptionColorDlg(const QString& caption, Color color, QWidget* parent)
    : QColorDialog(parent) {
  int place = 0;
  for (const Color desktop : kDesktopColors) setCustomColor(place++, ToQColor(desktop));
  setOption(QColorDialog::DontUseNativeDialog);  // the desktop's own would be in the session's language
  setWindowTitle(caption);
  setCurrentColor(ToQColor(color));
}

Color CCaptionColorDlg::Chosen() const {
  const QColor color = currentColor();
  return Rgb(static_cast<unsigned>(color.red()), static_cast<unsigned>(color.green()),
             static_cast<unsigned>(color.blue()));
}

}  // namespace orbisol
