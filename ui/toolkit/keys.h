// Keys that stand twice on a keyboard.
#pragma once

#include <qnamespace.h>

namespace orbisol {

// Enter, and that of the keypad.
inline bool IsEnter(int key) { return key == Qt::Key_Return || key == Qt::Key_Enter; }

}  // namespace orbisol
