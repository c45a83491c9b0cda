// The about box: which program this is, in which version and for which machine.
//
//   CAboutBox(&frame).exec();
#pragma once

#include <QDialog>

namespace orbisol {

// Returns "Version 1.2.3 / Linux 64 bits": the version of the top CMakeLists.txt, and the system that the
// program was built for.
QString VersionText();

class CAboutBox : public QDialog {
 public:
  explicit CAboutBox(QWidget* parent);
};

}  // namespace orbisol
