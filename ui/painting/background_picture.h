// The background picture that the settings ask for. A user's file may lie on a disk that never answers, so it
// is read beside the program, and the view has no picture until it is there.
//
//   m_background.Load(Display());   // the built-in picture is there at once
//   m_background.Read();            // after the next paint: begins with the file
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
  // Begins to read the file that Load() found in the settings. Does nothing where there is none.
  void Read();

  // Null while nothing is there: no picture is wanted, its file is still being read, it is no picture, or it
  // did not come within ten seconds.
  const QImage& Picture() const { return m_picture; }

 signals:
  void arrived();  // Picture() is that of the file now

 private:
  void Look();
  void LeaveReader();

  QImage m_picture;
  QString m_wanted;  // path that Read() begins with; empty: nothing is to be read
  QString m_silent;  // path of a file that did not answer; it is not asked again
  QString m_path;    // path of the file that is being read
  std::future<QImage> m_reading;
  std::thread m_reader;  // sets m_reading
  QTimer m_looks;        // for the end of the reading
  int m_lookCount = 0;
};

}  // namespace orbisol
