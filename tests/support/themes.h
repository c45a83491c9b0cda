// Palettes as desktops set them, for windows that must be readable under all of them.
#pragma once

#include <QPalette>

namespace orbisol {

// A palette of the desktop, with all that a theme sets of it.
struct Theme {
  const char* name;
  QRgb window, base, text, button, highlight, highlightedText, link, disabled, shade;

  QPalette Palette() const {
    QPalette palette;
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
      const QRgb ink = group == QPalette::Disabled ? disabled : text;
      const auto set = [&](QPalette::ColorRole role, QRgb color) { palette.setColor(group, role, color); };
      for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) set(role, ink);
      for (const auto role : {QPalette::Window, QPalette::ToolTipBase}) set(role, window);
      set(QPalette::Base, group == QPalette::Disabled ? window : base);
      set(QPalette::AlternateBase, window);
      set(QPalette::Button, button);
      set(QPalette::ToolTipText, text);
      set(QPalette::BrightText, text);
      set(QPalette::Highlight, highlight);
      set(QPalette::HighlightedText, highlightedText);
      set(QPalette::Link, link);
      set(QPalette::LinkVisited, link);
      palette.setColor(group, QPalette::PlaceholderText, QColor(qRed(text), qGreen(text), qBlue(text), 128));
      for (const auto role : {QPalette::Light, QPalette::Midlight}) set(role, button);
      for (const auto role : {QPalette::Dark, QPalette::Mid, QPalette::Shadow}) set(role, shade);
    }
    return palette;
  }
};

inline constexpr Theme kDarkTheme{"dark",     0xFF2D2D2D, 0xFF1E1E1E, 0xFFEEEEEC, 0xFF383838,
                                  0xFF15539E, 0xFFFFFFFF, 0xFF6BA5E7, 0xFF8B8B89, 0xFF161616};
inline constexpr Theme kContrastTheme{"contrast", 0xFF000000, 0xFF000000, 0xFFFFFFFF, 0xFF000000,
                                      0xFFFFFF00, 0xFF000000, 0xFF00FFFF, 0xFF00FF00, 0xFFFFFFFF};

}  // namespace orbisol
