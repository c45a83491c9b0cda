#include <QApplication>

#include <iostream>

#include "ui/shell/command_line.h"
#include "ui/shell/run.h"

int main(int argc, char** argv) {
  if (const auto code = orbisol::AnswerCommandLine({argv, argv + argc}, std::cout, std::cerr)) return *code;
  // A desktop's own dialogs would be in the session's language.
  QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
  QApplication::setApplicationName(QStringLiteral("orbisol"));
  QApplication::setOrganizationName(QStringLiteral("Corvalen"));
  QApplication::setDesktopFileName(QStringLiteral("org.corvalen.Orbisol"));
  QApplication application(argc, argv);
  return orbisol::Run(application);
}
