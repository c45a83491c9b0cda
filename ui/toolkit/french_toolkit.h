// The toolkit speaks French whatever the session's language: its buttons, the menus of its edit fields, its
// choosers and the names of keys; numbers in its fields are written the French way.
#pragma once

class QCoreApplication;

namespace orbisol {

// Installs the French texts. Call it before the first window is made. A machine without the toolkit's own
// French file gets the texts of the string table alone.
void SpeakFrench(QCoreApplication& application);

}  // namespace orbisol
