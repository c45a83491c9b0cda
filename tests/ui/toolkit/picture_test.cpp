#include <QBuffer>
#include <QFileDialog>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <sys/stat.h>

#include "tests/support/dialog_test.h"
#include "ui/toolkit/picture_chooser.h"
#include "ui/toolkit/picture_reader.h"

namespace orbisol {
namespace {

QByteArray Encoded(const QSize& size, const char* format) {
  QImage image(size, QImage::Format_RGB32);
  image.fill(Qt::darkCyan);
  QByteArray bytes;
  QBuffer buffer(&bytes);
  image.save(&buffer, format);
  return bytes;
}

// A decoder that opens other files, a pipe without a writer or a huge picture would stop the program.
TEST(PictureReaderTest, OnlyPicturesInRegularFilesAreRead) {
  const QTemporaryDir folder;
  const QString base = folder.path() + QLatin1Char('/');
  const QByteArray png = Encoded({400, 100}, "png");
  QByteArray huge = Encoded({1, 1}, "bmp");
  for (const qsizetype field : {18, 22}) huge.replace(field, 4, QByteArray("\x00\x40\x00\x00", 4));  // 16384
  const std::tuple<const char*, QByteArray, PictureFault> kFiles[] = {
      {"picture.png", png, PictureFault::kNone},
      {"wrongly named.svg", png, PictureFault::kNone},
      {"photo.jpg", Encoded({400, 100}, "jpg"), PictureFault::kNone},
      {"cut.png", png.left(png.size() / 2), PictureFault::kDamaged},
      {"huge.bmp", huge, PictureFault::kTooLarge},
      {"empty.png", QByteArray(), PictureFault::kNoFile},
      {"text.png", "Ceci n'est pas une image.", PictureFault::kNoPicture},
      {"drawing.png", R"(<svg xmlns="http://www.w3.org/2000/svg" width="9" height="9"/>)",
       PictureFault::kNoPicture},
      {"pixels.xpm", Encoded({4, 4}, "xpm"), PictureFault::kNoPicture},
  };
  for (const auto& [name, bytes, fault] : kFiles) {
    SCOPED_TRACE(name);
    QFile file(base + QLatin1String(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    file.close();
    const PictureFile picture = ReadPicture(file.fileName(), QSize(200, 200));
    EXPECT_EQ(picture.fault, fault);
    EXPECT_EQ(picture.image.size(), fault == PictureFault::kNone ? QSize(200, 50) : QSize(0, 0));
    EXPECT_EQ(PictureFaultText(picture.fault).isEmpty(), fault == PictureFault::kNone);
  }
  ASSERT_EQ(mkfifo(QFile::encodeName(base + QLatin1String("pipe.png")).constData(), 0600), 0);
  for (const QString& path : {base + QLatin1String("pipe.png"), folder.path(), QStringLiteral("/dev/zero"),
                              QStringLiteral("/proc/version")})
    EXPECT_EQ(ReadPicture(path, {9, 9}).fault, PictureFault::kNoFile) << qPrintable(path);
  EXPECT_EQ(ReadPicture(base + QLatin1String("none.png"), {9, 9}).fault, PictureFault::kNotFound);
  EXPECT_EQ(ReadPicture(QString(), {9, 9}).fault, PictureFault::kNotFound);
}

class PictureChooserTest : public DialogTest {};

// Asks the file dialog itself: with a filter that the toolkit does not understand it offers none or all
// files.
TEST_F(PictureChooserTest, TheDialogOffersPicturesInBothCasesAndTheReasonIsShown) {
  const QTemporaryDir folder;
  const QByteArray png = Encoded({400, 100}, "png");
  for (const char* name : {"a.png", "b.PNG", "c.Jpeg", "d.txt", "e.svg"}) {
    QFile file(folder.filePath(QLatin1String(name)));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(QLatin1String(name) == QLatin1String("d.txt") ? "text" : png);
  }
  CPictureChooser chooser;
  QSignalSpy changes(&chooser, &CPictureChooser::pathChanged);
  auto* const edit = chooser.findChild<QLineEdit*>();
  auto* const picture = chooser.findChild<QLabel*>();
  chooser.show();
  edit->setFocus();
  QTest::keyClicks(edit, folder.filePath(QStringLiteral("d.txt")));
  QTest::keyClick(edit, Qt::Key_Return);
  EXPECT_FALSE(chooser.IsValid());
  EXPECT_EQ(picture->text(), PictureFaultText(PictureFault::kNoPicture));
  EXPECT_EQ(edit->accessibleDescription(), picture->text());
  EXPECT_EQ(chooser.Path(), folder.filePath(QStringLiteral("d.txt")));

  QString shownFilter;
  QStringList offered;
  InDialog<QFileDialog>([&](QFileDialog& dialog) {
    shownFilter = dialog.nameFilters().front();
    const QString patterns = shownFilter.mid(shownFilter.lastIndexOf(QLatin1Char('(')) + 1).chopped(1);
    offered =
        QDir(folder.path()).entryList(patterns.split(QLatin1Char(' ')), QDir::Files | QDir::CaseSensitive);
    dialog.selectFile(QStringLiteral("b.PNG"));
    static_cast<QDialog&>(dialog).accept();
  });
  chooser.Browse();
  EXPECT_TRUE(shownFilter.startsWith(QStringLiteral("Toutes les images supportées (*.tif;*.tiff;")));
  EXPECT_EQ(offered,
            QStringList({QStringLiteral("a.png"), QStringLiteral("b.PNG"), QStringLiteral("c.Jpeg")}));
  EXPECT_EQ(changes.size(), 2);
  EXPECT_EQ(chooser.Path(), folder.filePath(QStringLiteral("b.PNG")));
  EXPECT_TRUE(chooser.IsValid());
  EXPECT_FALSE(picture->pixmap().isNull());
}

}  // namespace
}  // namespace orbisol
