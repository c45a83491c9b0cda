// Colors on their way to the toolkit.
#pragma once

#include <QColor>

#include "content/calendar_look.h"

namespace orbisol {

inline QColor ToQColor(Color color) {
  return {static_cast<int>(color & 0xFF), static_cast<int>(color >> 8 & 0xFF),
          static_cast<int>(color >> 16 & 0xFF)};
}

}  // namespace orbisol
