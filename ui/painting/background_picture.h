// The background picture that the settings ask for. A user's file may lie on a disk that never answers, so a
// thread of its own reads it, and the view has no picture until that is done.
//
//   m_background.Load(Display());   // the built-in picture is there at once
//   m_background.Read();            // after the next paint: begins to read the file
//   connect(&m_background, &CBackgroundPicture::arrived, …);
#pragma once

#include <QImage>
#include <QObject>
#include <QString>
#include <QTimer>

#include <future>
#include <thread>

#include "settings/display_settings.h"

namespace orbisol {

class CBackgroundPicture : public QObject {
  Q_OBJECT

 public:
  CBackgroundPicture();
  // Waits a moment for a picture that is being decoded; a file that does not answer is left behind.
  ~CBackgroundPicture() override;

  // Drops the picture and takes the one that `settings` ask for.
  void Load(const DisplaySettings& settings);
  // Begins to read the file that Load() found in the settings. Does nothing if there is none.
  void Read();

  // Returns the picture; null if none is wanted, while its file is being read, if that is no picture, or if
  // it did not arrive within ten seconds.
  const QImage& Picture() const { return m_picture; }

 signals:
  void arrived();  // Picture() is now that of the file

 private:
  void Look();
  void LeaveReader();

  QImage m_picture;
  QString m_wanted;  // path that Read() will read; empty for none
  QString m_silent;  // path of a file that did not answer; it is not read again
  QString m_path;    // path of the file that is being read
  std::future<QImage> m_reading;
  std::thread m_reader;  // thread that sets m_reading
  QTimer m_looks;        // timer that checks whether m_reading is set
  int m_lookCount = 0;
};

}  // namespace orbisol
