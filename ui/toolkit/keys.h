// Keys that a keyboard has twice.
#pragma once

#include <qnamespace.h>

namespace orbisol {

// Returns whether a key is Enter, be it that of the keypad.
inline bool IsEnter(int key) { return key == Qt::Key_Return || key == Qt::Key_Enter; }

}  // namespace orbisol
