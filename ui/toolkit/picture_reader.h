// Reads pictures that a user named, from files that may be anything.
//
//   const PictureFile picture = ReadPicture(path, QSize(3840, 2160));
//   if (picture.image.isNull()) warn(PictureFaultText(picture.fault));
//
// Only regular files are read, so a pipe or a device never blocks the program, and only in the formats named
// below, so no decoder is reached that would open other files. The content of a file decides its format, not
// its name.
#pragma once

#include <QImage>
#include <QSize>
#include <QString>

namespace orbisol {

enum class PictureFault {
  kNone,
  kNotFound,   // missing, or not readable by this user
  kNoFile,     // a folder, a pipe, a device, or an empty file
  kNoPicture,  // not in one of the formats TIFF, JPEG, PNG, GIF and BMP
  kTooLarge,   // more than 512 MiB or 250 million pixels
  kDamaged,    // in one of these formats, but it cannot be decoded
};

struct PictureFile {
  QImage image;  // null unless `fault` is kNone; turned upright as its file asks
  PictureFault fault = PictureFault::kNone;
};

// Reads the picture of `path`, scaled down to lie within `largest` where it is larger, in its proportions.
// Never larger than asked for, never scaled up. `path` is absolute or relative to the working folder.
PictureFile ReadPicture(const QString& path, const QSize& largest);

// Returns the reason in French, one sentence; empty for kNone.
QString PictureFaultText(PictureFault fault);

}  // namespace orbisol
