#include "ui/painting/background_picture.h"

#include <QSize>

#include <chrono>
#include <exception>
#include <system_error>
#include <thread>
#include <utility>

#include "ui/painting/month_pictures.h"
#include "ui/toolkit/picture_reader.h"
#include "ui/toolkit/plain_text.h"

namespace orbisol {
namespace {

constexpr QSize kLargeScreen(3840, 2160);  // bound of the decoded picture

constexpr std::chrono::milliseconds kBetweenLooks(20);
constexpr int kMostLooks = 500;  // ten seconds
constexpr std::chrono::seconds kFarewell(1);

// Begins to read in a thread of its own. If no thread can be made there will be no picture.
std::thread ReadBeside(const QString& path, std::promise<QImage> promise) {
  try {
    return std::thread([path, result = std::move(promise)]() mutable {
      try {
        result.set_value(ReadPicture(path, kLargeScreen).image);
      } catch (...) {  // no memory for the picture
        result.set_exception(std::current_exception());
      }
    });
  } catch (const std::system_error&) {
    return {};
  }
}

}  // namespace

CBackgroundPicture::CBackgroundPicture() {
  m_looks.setInterval(kBetweenLooks);
  m_looks.callOnTimeout(this, [this] { Look(); });
}

CBackgroundPicture::~CBackgroundPicture() {
  if (m_reading.valid()) m_reading.wait_for(kFarewell);
  LeaveReader();
}

// Gives the thread up. A thread that is stuck in the kernel is detached and ends with the process.
void CBackgroundPicture::LeaveReader() {
  if (!m_reader.joinable()) return;
  const bool isDone =
      !m_reading.valid() || m_reading.wait_for(std::chrono::seconds(0)) == std::future_status::ready;
  if (isDone) {
    m_reader.join();
  } else {
    m_reader.detach();
  }
}

void CBackgroundPicture::Load(const DisplaySettings& settings) {
  m_looks.stop();
  m_picture = QImage();
  m_wanted.clear();
  m_path.clear();
  if (!settings.backgroundImage) return;
  const QString path = ToQString(settings.backgroundImagePath.View());
  if (path.isEmpty()) {
    m_picture = BuiltInBackground();
  } else if (path != m_silent) {
    m_wanted = path;
  }
}

void CBackgroundPicture::Read() {
  if (m_wanted.isEmpty()) return;
  m_path = std::exchange(m_wanted, QString());
  LeaveReader();
  std::promise<QImage> promise;
  m_reading = promise.get_future();
  m_reader = ReadBeside(m_path, std::move(promise));
  m_lookCount = 0;
  m_looks.start();
}

void CBackgroundPicture::Look() {
  if (m_reading.wait_for(std::chrono::seconds(0)) != std::future_status::ready) {
    if (++m_lookCount < kMostLooks) return;
    m_silent = m_path;
    LeaveReader();
    m_reading = {};
    m_looks.stop();
    return;
  }
  m_looks.stop();
  LeaveReader();
  try {
    m_picture = m_reading.get();
  } catch (const std::exception&) {
    m_picture = QImage();
  }
  if (!m_picture.isNull()) emit arrived();
}

}  // namespace orbisol
