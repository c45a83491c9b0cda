#include "ui/toolkit/picture_reader.h"

#include <QFile>
#include <QImageReader>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>

#include "resources/strings.h"
#include "ui/toolkit/plain_text.h"

namespace orbisol {
namespace {

constexpr qint64 kMostBytes = qint64{512} << 20;
constexpr qint64 kMostPixels = 250'000'000;  // pictures of telephones have up to 200 million

// Names of the formats, as QImageReader::format() returns them.
constexpr std::array<const char*, 5> kFormats = {"tiff", "jpeg", "png", "gif", "bmp"};

// Opens a regular file that is not empty. Without O_NONBLOCK the opening itself would wait for the writer of
// a pipe. Files of the kernel that block when they are read say that they hold no bytes.
PictureFault OpenRegular(const QString& path, QFile& file) {
  const QByteArray name = QFile::encodeName(path);
  const int descriptor = ::open(name.constData(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
  if (descriptor < 0) return PictureFault::kNotFound;
  struct stat facts = {};
  const bool isRegular = ::fstat(descriptor, &facts) == 0 && S_ISREG(facts.st_mode) && facts.st_size > 0;
  if (!isRegular || facts.st_size > kMostBytes) {
    ::close(descriptor);
    return isRegular ? PictureFault::kTooLarge : PictureFault::kNoFile;
  }
  if (file.open(descriptor, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle)) return PictureFault::kNone;
  ::close(descriptor);
  return PictureFault::kNotFound;
}

}  // namespace

PictureFile ReadPicture(const QString& path, const QSize& largest) {
  QFile file;
  if (const PictureFault fault = OpenRegular(path, file); fault != PictureFault::kNone) return {{}, fault};

  QImageReader reader(&file);
  reader.setDecideFormatFromContent(true);
  reader.setAutoTransform(true);
  const QByteArray format = reader.format();
  if (std::find(kFormats.begin(), kFormats.end(), format) == kFormats.end())
    return {{}, PictureFault::kNoPicture};

  const QSize size = reader.size();
  if (!size.isValid() || size.isEmpty()) return {{}, PictureFault::kDamaged};
  if (qint64{size.width()} * size.height() > kMostPixels) return {{}, PictureFault::kTooLarge};
  // A picture that lies on its side is scaled before it is turned, so its bound lies on its side too.
  const bool isTurned = (reader.transformation() & QImageIOHandler::TransformationRotate90) != 0;
  const QSize bound = isTurned ? largest.transposed() : largest;
  if (size.width() > bound.width() || size.height() > bound.height())
    reader.setScaledSize(size.scaled(bound, Qt::KeepAspectRatio).expandedTo(QSize(1, 1)));
  QImage image = reader.read();
  if (image.isNull()) return {{}, PictureFault::kDamaged};
  return {std::move(image), PictureFault::kNone};
}

QString PictureFaultText(PictureFault fault) {
  return fault == PictureFault::kNone ? QString()
                                      : TablePiece(kTextPictureFaults, static_cast<int>(fault) - 1);
}

}  // namespace orbisol
