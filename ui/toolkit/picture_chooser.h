// A field for the path of a picture, with a button that opens the file dialog and the picture itself, small.
//
//   auto* const chooser = new CPictureChooser;
//   chooser->SetPath(settings.backgroundImagePath);
//   connect(chooser, &CPictureChooser::pathChanged, this, [this](const QString& path) { … });
//
// A path can be typed as well; it is taken when the field loses the focus or Enter is pressed. A file that is
// no picture (picture_reader.h) keeps its path, because a network folder may come back: the reason stands in
// the place of the picture and IsValid() is false. An empty path stands for the built-in picture.
#pragma once

#include <QWidget>

class QLabel;
class QLineEdit;
class QPushButton;

namespace orbisol {

// Returns the filter of the file dialog in the toolkit's form, from an entry of the string table: a caption
// and its patterns between "|". The caption is shown as it stands. Each pattern is found in capitals too, and
// one without its dot ("*png") is read with it.
QString PictureFilter(std::u16string_view entry);

// Opens the file dialog at `current`, or in the user's folder of pictures where that is empty or its folder
// gone. Returns the path chosen; empty for none. The file may be anything.
QString AskPicture(QWidget* parent, const QString& current = {});

class CPictureChooser : public QWidget {
  Q_OBJECT

 public:
  explicit CPictureChooser(QWidget* parent = nullptr);

  // Shows a path and its picture. Emits nothing.
  void SetPath(const QString& path);
  QString Path() const { return m_path; }

  // Returns whether the path is empty or that of a picture which can be read.
  bool IsValid() const { return m_isValid; }

  // Opens the file dialog, and takes what is chosen in it.
  void Browse();

 signals:
  void pathChanged(const QString& path);  // by the user

 private:
  void Take(const QString& path);
  void ShowPicture();

  QString m_path;
  bool m_isValid = true;
  QLineEdit* m_edit;
  QPushButton* m_browse;
  QLabel* m_picture;
};

}  // namespace orbisol
