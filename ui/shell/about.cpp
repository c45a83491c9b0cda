#include "ui/shell/about.h"

#include <climits>

#include "resources/strings.h"
#include "ui/toolkit/plain_text.h"
#include "ui/window/tool_icons.h"
#include "ui_about.h"

namespace orbisol {
namespace {

constexpr int kIconSide = 64;
constexpr double kNameScale = 1.6;  // font size of the program's name, by that of the other texts

#if defined(Q_OS_WIN)
constexpr std::u16string_view kSystem = u"Windows";
#elif defined(Q_OS_MACOS)
constexpr std::u16string_view kSystem = u"macOS";
#else
constexpr std::u16string_view kSystem = u"Linux";
#endif
constexpr int kBits = sizeof(void*) * CHAR_BIT;

}  // namespace

QString VersionText() {
  return TableText(kTextVersion,
                   {ORBISOL_VERSION_MAJOR, ORBISOL_VERSION_MINOR, ORBISOL_VERSION_PATCH, kSystem, kBits});
}

CAboutBox::CAboutBox(QWidget* parent) : QDialog(parent) {
  Ui::AboutBox form;
  form.setupUi(this);
  form.icon->setPixmap(ProgramIcon().pixmap(kIconSide));
  form.version->setText(VersionText());
  QFont large = form.name->font();
  large.setPointSizeF(large.pointSizeF() * kNameScale);
  large.setBold(true);
  form.name->setFont(large);
}

}  // namespace orbisol
