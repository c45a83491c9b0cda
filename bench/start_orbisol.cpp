// The program itself, which here reports how far its start has come.
#include <QApplication>

#include "bench/start_report.h"
#include "ui/shell/run.h"

int main(int argc, char** argv) {
  QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
  QApplication application(argc, argv);
  const orbisol::CStartReport report;
  return orbisol::Run(application);
}
