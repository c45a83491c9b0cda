#include "resources/help/help_pages.h"

#include <QFile>

#include <algorithm>

namespace orbisol {
namespace {

constexpr HelpPage kPages[] = {
    {kHelpMainWindow, "main_window.html"},
};

}  // namespace

std::span<const HelpPage> HelpPages() { return kPages; }

QString HelpPageText(const QString& file) {
  const bool isListed = std::any_of(std::begin(kPages), std::end(kPages),
                                    [&](const HelpPage& page) { return file == QLatin1String(page.file); });
  QFile page(QStringLiteral(":/help/%1").arg(file));
  return isListed && page.open(QIODevice::ReadOnly) ? QString::fromUtf8(page.readAll()) : QString();
}

}  // namespace orbisol
