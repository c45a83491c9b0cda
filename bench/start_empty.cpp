// The smallest program with this toolkit: an empty main window as large as the first one of ours on a screen
// of 3840 x 2160, with a menu bar, a tool bar, a status bar and French texts.
#include <QAction>
#include <QApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QStatusBar>
#include <QStringList>
#include <QToolBar>
#include <QTranslator>

#include "bench/start_report.h"

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  const orbisol::CStartReport report;
  QLocale::setDefault(QLocale(QLocale::French, QLocale::France));
  QTranslator translator;
  if (translator.load(QStringLiteral("qtbase_fr"), QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
    QCoreApplication::installTranslator(&translator);

  QMainWindow window;
  QToolBar* const bar = window.addToolBar(QStringLiteral("Barre d'outils"));
  for (const char* const title : {"&Fichier", "&Édition", "Affichage", "&Outils", "?"}) {
    QMenu* const menu = window.menuBar()->addMenu(QString::fromUtf8(title));
    for (const char* const item : {"Ouvrir...", "Copier", "Personnaliser..."})
      bar->addAction(menu->addAction(QString::fromUtf8(item)));
  }
  window.statusBar()->showMessage(QStringLiteral("Premier quartier de lune"));
  window.resize(1280, 800);
  window.show();
  return QApplication::exec();
}
