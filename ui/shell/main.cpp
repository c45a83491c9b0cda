#include <QApplication>

#include "ui/shell/run.h"

int main(int argc, char** argv) {
  // A desktop's own dialogs would come in the session's language.
  QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
  QApplication::setApplicationName(QStringLiteral("orbisol"));
  QApplication::setOrganizationName(QStringLiteral("Corvalen"));
  QApplication::setDesktopFileName(QStringLiteral("org.corvalen.Orbisol"));
  QApplication application(argc, argv);
  return orbisol::Run(application);
}
