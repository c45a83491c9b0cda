// The fields that dialogs share, each in a bare dialog.
#include <QApplication>
#include <QDialog>
#include <QFormLayout>
#include <QLabel>

#include "core/calendar_config.h"
#include "tools/screenshot/pictures.h"
#include "ui/toolkit/date_drop_down.h"
#include "ui/toolkit/date_edit.h"
#include "ui/toolkit/picture_chooser.h"

namespace orbisol {
namespace {

struct FieldPicture {
  const char* name;
  int points;       // size of the font; 0 for the desktop's
  PackedDate date;  // date whose month is dropped down
};

constexpr FieldPicture kFieldPictures[] = {
    {"date_edit", 0, 20260513},
    {"date_edit_october_1582", 0, 15821004},
    {"date_edit_font_18", 18, 20260513},
};

void SaveDateEdit(CPictureFolder& folder, const FieldPicture& picture) {
  QDialog dialog;
  if (picture.points != 0) {
    QFont font = dialog.font();
    font.setPointSize(picture.points);
    dialog.setFont(font);
  }
  auto* const form = new QFormLayout(&dialog);
  auto* const always = new CDateEdit;
  always->SetNoneText(QStringLiteral("toujours"));
  auto* const wrong = new CDateEdit;
  wrong->setText(QStringLiteral("10/10/1582"));
  wrong->SetDate(15821010);
  auto* const date = new CDateEdit;
  date->SetNoneText(QStringLiteral("toujours"));
  date->SetDate(picture.date);
  form->addRow(QStringLiteral("&Depuis le :"), always);
  form->addRow(QStringLiteral("&Jusqu'au :"), wrong);
  form->addRow(QStringLiteral("&Le :"), date);
  dialog.show();
  dialog.activateWindow();
  date->setFocus();
  QApplication::processEvents();
  date->OpenDropDown();
  QApplication::processEvents();
  folder.Save(dialog, QString::fromLatin1(picture.name), date->findChild<CDateDropDown*>());
}

void SavePictureChooser(CPictureFolder& folder) {
  QDialog dialog;
  auto* const form = new QFormLayout(&dialog);
  auto* const picture = new CPictureChooser;
  auto* const missing = new CPictureChooser;
  picture->SetPath(QStringLiteral(ORBISOL_SOURCE_DIR "/docs/main-window.png"));
  missing->SetPath(QStringLiteral("/media/photos/vacances.jpg"));
  form->addRow(QStringLiteral("&Image :"), picture);
  form->addRow(QStringLiteral("&Autre :"), missing);
  form->addRow(QStringLiteral("&Sans :"), new CPictureChooser);
  dialog.show();
  QApplication::processEvents();
  folder.Save(dialog, QStringLiteral("picture_chooser"));
}

}  // namespace

void TakeFields(CPictureFolder& folder) {
  ResetCalendarConfig();
  for (const FieldPicture& picture : kFieldPictures) SaveDateEdit(folder, picture);
  SavePictureChooser(folder);
}

}  // namespace orbisol
