// The help, at its page and at its index, and the about box.
#include "ui/window/help.h"

#include <QApplication>

#include "tools/screenshot/pictures.h"
#include "ui/shell/about.h"

namespace orbisol {
namespace {

struct HelpPicture {
  const char* name;
  const char* link;  // page and place shown
};

constexpr HelpPicture kHelpPictures[] = {
    {"help", "main_window.html#fenetre"}, {"help_keys", "keys.html#touches"},
    {"help_rules", "rules.html#regles"},  {"help_civil_years", "civil_years.html#paques"},
    {"help_reform", "reform.html#pays"},
};

}  // namespace

void TakeHelp(CPictureFolder& folder) {
  CHelpWindow window;
  window.show();
  for (const HelpPicture& picture : kHelpPictures) {
    window.ShowContents();
    window.Browser().ShowPage(QString::fromLatin1(picture.link));
    QApplication::processEvents();
    folder.Save(window, QString::fromLatin1(picture.name));
  }
  window.ShowIndex();
  QApplication::processEvents();
  folder.Save(window, QStringLiteral("help_index"));
  window.close();

  CAboutBox about(nullptr);
  about.show();
  QApplication::processEvents();
  folder.Save(about, QStringLiteral("about"));
}

}  // namespace orbisol
