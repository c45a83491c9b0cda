#include "ui/shell/program_end.h"

#include <QApplication>
#include <QEvent>
#include <QSemaphore>
#include <QSessionManager>
#include <QSocketNotifier>
#include <QThread>

#include <atomic>
#include <cstdlib>
#include <memory>

#include "resources/strings.h"
#include "ui/shell/calendar_frame.h"
#include "ui/toolkit/messages.h"
#include "ui/toolkit/plain_text.h"

namespace orbisol {
namespace {

// Frame that is there while the program runs; null before and after.
std::atomic<CCalendarFrame*> g_openFrame;
QtMessageHandler g_print = nullptr;  // handler that was there before ours

// Keeps what is unsaved, in the thread of the windows. Waits for that no longer than some seconds.
void KeepNow() {
  constexpr int kMostMilliseconds = 5000;
  CCalendarFrame* const frame = g_openFrame;
  if (frame == nullptr) return;
  if (frame->thread() == QThread::currentThread()) return static_cast<void>(frame->KeepUnsaved());
  const auto kept = std::make_shared<QSemaphore>();
  QMetaObject::invokeMethod(
      frame,
      [frame, kept] {
        frame->KeepUnsaved();
        kept->release();
      },
      Qt::QueuedConnection);
  kept->tryAcquire(1, kMostMilliseconds);
}

// The toolkit ends the process when it loses the display, in the midst of everything: by exit() under X11.
// Under Wayland it only says so, in a thread of its own, and ends without calling anybody.
void WatchMessages(QtMsgType type, const QMessageLogContext& context, const QString& text) {
  g_print(type, context, text);
  if (text.startsWith(QLatin1String("The Wayland connection"))) KeepNow();
}

}  // namespace

CProgramEnd::CProgramEnd(CCalendarFrame& frame) : m_frame(frame) {
  static const bool isRegistered = std::atexit(&KeepNow) == 0;
  if (isRegistered) g_openFrame = &frame;
  g_print = qInstallMessageHandler(&WatchMessages);
  if (m_signals.Descriptor() >= 0) {
    auto* const ending = new QSocketNotifier(m_signals.Descriptor(), QSocketNotifier::Read, this);
    connect(ending, &QSocketNotifier::activated, this, [this, ending] {
      ending->setEnabled(false);
      End();
    });
  }
  // A session that ends waits for this slot only and then closes the display.
  connect(
      qApp, &QGuiApplication::commitDataRequest, this,
      [this](QSessionManager& session) {
        if (!m_frame.KeepForNextSession()) Hold(session);
      },
      Qt::DirectConnection);
  qApp->installEventFilter(this);
}

CProgramEnd::~CProgramEnd() {
  qInstallMessageHandler(g_print);
  g_openFrame = nullptr;
}

void CProgramEnd::Hold(QSessionManager& session) {
  if (!session.allowsErrorInteraction()) return;
  Messages().ShowError(&m_frame, TableText(kTextSessionHeld));
  session.release();
  session.cancel();
}

bool CProgramEnd::eventFilter(QObject* watched, QEvent* event) {
  if (watched != qApp || event->type() != QEvent::Quit || !m_frame.isVisible()) return false;
  End();
  return true;
}

void CProgramEnd::End() {
  m_frame.KeepForNextSession();
  m_frame.close();
  QApplication::exit();  // unlike quit(), asks no dialog whether it may be closed
}

}  // namespace orbisol
