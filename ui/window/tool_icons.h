// The program's own icons: drawings in the text color of the theme with one accent, sharp at every size.
//
//   button->setIcon(ToolIcon("print"));
#pragma once

#include <QColor>
#include <QIcon>

#include <string_view>

namespace orbisol {

// Returns an icon of resources/pictures/icons by its name. It follows the palette of the application, unless
// an ink is given; disabled it is drawn in the color of disabled text. Empty for a name that does not exist.
QIcon ToolIcon(std::string_view name, const QColor& ink = QColor());

// Returns the icon of the program and its windows. Its sizes are drawn when they are asked for.
QIcon ProgramIcon();

}  // namespace orbisol
