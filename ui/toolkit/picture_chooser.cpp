#include "ui/toolkit/picture_chooser.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStandardPaths>

#include "core/text.h"
#include "resources/strings.h"
#include "ui/toolkit/picture_reader.h"
#include "ui/toolkit/plain_text.h"

namespace orbisol {
namespace {

constexpr int kPathLetters = 40;
constexpr int kPictureLines = 5;  // height of the small picture, in lines of text

enum ChooserText { kPathName, kBrowse, kPictureName, kNoPicture };  // indices of its pieces

// Returns "*.[pP][nN][gG]" for "*png" and "*.png".
QString AnyCase(std::u16string_view pattern) {
  QString found = QStringLiteral("*.");
  for (const QChar unit : ToQString(pattern)) {
    if (unit.isLetter()) {
      found += QLatin1Char('[') + unit.toLower() + unit.toUpper() + QLatin1Char(']');
    } else if (unit != QLatin1Char('*') && unit != QLatin1Char('.')) {
      found += unit;
    }
  }
  return found;
}

}  // namespace

QString PictureFilter(std::u16string_view entry) {
  QStringList patterns;
  for (const std::u16string_view pattern : Split(Piece(entry, u'|', 1), u';')) patterns << AnyCase(pattern);
  // The dialog takes the text in the last brackets for patterns and does not show it.
  return QStringLiteral("%1 (%2)").arg(ToQString(Piece(entry, u'|', 0)), patterns.join(QLatin1Char(' ')));
}

QString AskPicture(QWidget* parent, const QString& current) {
  const QFileInfo file(current);
  const bool isThere = !current.isEmpty() && file.dir().exists();
  QFileDialog dialog(
      parent, TableText(kTextOpenPicture),
      isThere ? file.absolutePath() : QStandardPaths::writableLocation(QStandardPaths::PicturesLocation),
      PictureFilter(StringText(kTextPictureFilter)));
  // The desktop's own dialog would be in the session's language.
  dialog.setOption(QFileDialog::DontUseNativeDialog);
  dialog.setOption(QFileDialog::HideNameFilterDetails);
  dialog.setFileMode(QFileDialog::ExistingFile);
  if (isThere) dialog.selectFile(file.fileName());
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return {};
  return dialog.selectedFiles().front();
}

CPictureChooser::CPictureChooser(QWidget* parent)
    : QWidget(parent),
      m_edit(new QLineEdit),
      m_browse(new QPushButton(TablePiece(kTextPictureChooser, kBrowse))),
      m_picture(new QLabel) {
  m_edit->setAccessibleName(TablePiece(kTextPictureChooser, kPathName));
  m_edit->setPlaceholderText(TablePiece(kTextPictureChooser, kNoPicture));
  m_edit->setMinimumWidth(kPathLetters * fontMetrics().averageCharWidth());
  m_picture->setTextFormat(Qt::PlainText);
  m_picture->setWordWrap(true);
  m_picture->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  m_picture->setFixedHeight(kPictureLines * fontMetrics().lineSpacing());
  auto* const grid = new QGridLayout(this);
  grid->setContentsMargins({});
  grid->addWidget(m_edit, 0, 0);
  grid->addWidget(m_browse, 0, 1);
  grid->addWidget(m_picture, 1, 0, 1, 2);
  grid->setRowStretch(2, 1);
  setFocusProxy(m_edit);
  connect(m_edit, &QLineEdit::editingFinished, this, [this] { Take(m_edit->text()); });
  connect(m_browse, &QPushButton::clicked, this, &CPictureChooser::Browse);
  ShowPicture();
}

void CPictureChooser::SetPath(const QString& path) {
  m_edit->setText(path);
  if (path == m_path) return;
  m_path = path;
  ShowPicture();
}

void CPictureChooser::Take(const QString& path) {
  if (path == m_path) return;
  SetPath(path);
  emit pathChanged(path);
}

void CPictureChooser::ShowPicture() {
  const qreal ratio = devicePixelRatioF();
  const int height = qRound(m_picture->height() * ratio);
  // The picture is at most twice as wide as high, so that a panorama does not widen the dialog.
  const PictureFile file = m_path.isEmpty() ? PictureFile() : ReadPicture(m_path, QSize(2 * height, height));
  m_isValid = file.fault == PictureFault::kNone;
  const QString fault = PictureFaultText(file.fault);
  m_edit->setAccessibleDescription(fault);
  m_picture->setAccessibleName(TablePiece(kTextPictureChooser, kPictureName));
  if (file.image.isNull()) {
    m_picture->setPixmap({});
    m_picture->setText(fault);
    return;
  }
  QPixmap pixmap = QPixmap::fromImage(file.image);
  pixmap.setDevicePixelRatio(ratio);
  m_picture->setPixmap(pixmap);
}

void CPictureChooser::Browse() {
  const QString path = AskPicture(this, m_path);
  if (!path.isEmpty()) Take(path);
}

}  // namespace orbisol
