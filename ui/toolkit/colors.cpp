#include "ui/toolkit/colors.h"

#include <algorithm>
#include <cmath>

namespace orbisol {
namespace {

// Returns the amount of light, 0 to 1, by the definition of "relative luminance" in WCAG 2.1.
double Luminance(const QColor& color) {
  const auto linear = [](double part) {
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

}  // namespace

double Contrast(const QColor& a, const QColor& b) {
  const auto [darker, lighter] = std::minmax({Luminance(a), Luminance(b)});
  return (lighter + 0.05) / (darker + 0.05);
}

QColor LegibleOn(const QColor& ground, QColor ink) {
  constexpr double kLegible = 4.5;
  constexpr int kStep = 4;  // lightness, of 255; the steps reach black or white at last
  const int change = Contrast(ground, Qt::black) > Contrast(ground, Qt::white) ? -kStep : kStep;
  while (Contrast(ink, ground) < kLegible && (change < 0 ? ink.lightness() > 0 : ink.lightness() < 255))
    ink.setHsl(ink.hslHue(), ink.hslSaturation(), std::clamp(ink.lightness() + change, 0, 255));
  return ink;
}

QColor NoteColor(const QPalette& colors, QPalette::ColorRole ground) {
  const QColor behind = colors.color(ground);
  const QColor ink = colors.color(QPalette::PlaceholderText);  // half transparent in most themes
  const auto mixed = [&](float part, float partBehind) {
    return partBehind + (part - partBehind) * ink.alphaF();
  };
  return LegibleOn(behind,
                   QColor::fromRgbF(mixed(ink.redF(), behind.redF()), mixed(ink.greenF(), behind.greenF()),
                                    mixed(ink.blueF(), behind.blueF())));
}

}  // namespace orbisol
