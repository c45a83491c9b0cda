// The folder for pictures of the program, and the sets of pictures. Each set is a file of its own; a new set
// needs its function here and a row in screenshots.cpp.
#pragma once

#include <QString>

#include <string>

class QImage;
class QPalette;
class QWidget;

namespace orbisol {

// A folder of PNG files. Scale and font stand in their names: "about@1.25.png".
class CPictureFolder {
 public:
  explicit CPictureFolder(const QString& path) : m_path(path) {}

  // Saves a window as it is painted; with `popup`, what hangs below it as well. A picture that cannot be
  // written is named on the error output and counted.
  void Save(QWidget& window, const QString& name, QWidget* popup = nullptr);

  // Saves a picture that was painted without a window.
  void Save(const QImage& picture, const QString& name);

  int Failures() const { return m_failures; }

 private:
  template <class Picture>
  void Write(const Picture& picture, const QString& name);

  QString m_path;
  int m_failures = 0;
};

// Returns the colors that a dark desktop sets for all programs.
QPalette DarkTheme();

// Returns the bytes of the shipped calendar of France.
std::string FileOfFrance();

void TakeFirstWindow(CPictureFolder& folder);  // the window of a first start, on the screen of this run
void TakeMainWindow(CPictureFolder& folder);
void TakeMonths(CPictureFolder& folder);       // the month alone, in what the settings can make of it
void TakeHelp(CPictureFolder& folder);         // the help and the about box
void TakeEditors(CPictureFolder& folder);      // of events and vacation periods
void TakeFields(CPictureFolder& folder);       // the fields that dialogs share
void TakeFind(CPictureFolder& folder);         // going to a date, and searching
void TakePreferences(CPictureFolder& folder);  // the preferences, and months with texts in their cells
void TakePrintFrame(CPictureFolder& folder);
void TakePrinting(CPictureFolder& folder);   // printed pages in every format
void TakeCalendars(CPictureFolder& folder);  // the choice of a calendar, versions, the import

}  // namespace orbisol
