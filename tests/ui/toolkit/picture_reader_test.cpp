#include <gtest/gtest.h>

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <sys/stat.h>

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

// A decoder that opens other files, a pipe without a writer and a picture of a terabyte would each stop the
// program that meets them.
TEST(PictureReaderTest, OnlyPicturesInRegularFilesAreRead) {
  const QTemporaryDir folder;
  const QString base = folder.path() + QLatin1Char('/');
  const QByteArray png = Encoded({400, 100}, "png");
  QByteArray huge = Encoded({1, 1}, "bmp");
  for (const qsizetype field : {18, 22}) huge.replace(field, 4, QByteArray("\x00\x40\x00\x00", 4));  // 16384
  const struct {
    const char* name;
    QByteArray bytes;
    PictureFault fault;
  } kFiles[] = {
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
  for (const auto& row : kFiles) {
    SCOPED_TRACE(row.name);
    QFile file(base + QLatin1String(row.name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(row.bytes) == row.bytes.size());
    file.close();
    const PictureFile picture = ReadPicture(file.fileName(), QSize(200, 200));
    EXPECT_EQ(picture.fault, row.fault);
    EXPECT_EQ(picture.image.size(), row.fault == PictureFault::kNone ? QSize(200, 50) : QSize(0, 0));
    EXPECT_EQ(PictureFaultText(picture.fault).isEmpty(), row.fault == PictureFault::kNone);
  }
  ASSERT_EQ(mkfifo(QFile::encodeName(base + QLatin1String("pipe.png")).constData(), 0600), 0);
  for (const QString& path : {base + QLatin1String("pipe.png"), folder.path(), QStringLiteral("/dev/zero"),
                              QStringLiteral("/proc/version")})
    EXPECT_EQ(ReadPicture(path, {9, 9}).fault, PictureFault::kNoFile) << qPrintable(path);
  EXPECT_EQ(ReadPicture(base + QLatin1String("none.png"), {9, 9}).fault, PictureFault::kNotFound);
  EXPECT_EQ(ReadPicture(QString(), {9, 9}).fault, PictureFault::kNotFound);
}

}  // namespace
}  // namespace orbisol
