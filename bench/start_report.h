// Reports on the standard output how far the start of a program with a window has come, for the script that
// measures it:
//
//   painted          its first window was painted and handed to the display
//   settled 43210    nothing is left to do; with the peak of its memory in kB
//
//   QApplication application(argc, argv);
//   CStartReport report;
#pragma once

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QEvent>
#include <QObject>
#include <QWidget>

#include <cstdio>
#include <fstream>
#include <string>

namespace orbisol {

class CStartReport : public QObject {
 public:
  CStartReport() {
    QCoreApplication::instance()->installEventFilter(this);
    connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, this, [this] {
      if (m_stage != kPainted) return;
      m_stage = kSettled;
      std::printf("settled %ld\n", PeakMemory());
      std::fflush(stdout);
    });
  }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (m_stage == kStarting && event->type() == QEvent::Paint && watched->isWidgetType()) {
      m_stage = kPainting;
      // The report waits for the end of the event that paints the whole window and hands it over.
      QMetaObject::invokeMethod(this, &CStartReport::Painted, Qt::QueuedConnection);
    }
    return false;
  }

 private:
  enum Stage { kStarting, kPainting, kPainted, kSettled };

  void Painted() {
    m_stage = kPainted;
    QCoreApplication::instance()->removeEventFilter(this);
    std::puts("painted");
    std::fflush(stdout);
  }

  static long PeakMemory() {
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);)
      if (line.rfind("VmHWM:", 0) == 0) return std::stol(line.substr(6));
    return 0;
  }

  Stage m_stage = kStarting;
};

}  // namespace orbisol
