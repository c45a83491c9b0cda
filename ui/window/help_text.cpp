#include "ui/window/help_text.h"

#include <QCollator>
#include <QLocale>
#include <QRegularExpression>
#include <QTextDocumentFragment>

#include <algorithm>

#include "resources/help/help_pages.h"

namespace orbisol {

std::vector<HelpHeading> HelpHeadingsOf(const QString& file, const QString& text) {
  static const QRegularExpression kPart(
      QStringLiteral(R"re(<h([12]) id="([^"]+)">(.*?)</h[12]>|<!-- index:(.*?)-->)re"),
      QRegularExpression::DotMatchesEverythingOption);
  enum { kLevel = 1, kId, kTitle, kWords };
  std::vector<HelpHeading> headings;
  for (auto parts = kPart.globalMatch(text); parts.hasNext();) {
    const QRegularExpressionMatch part = parts.next();
    if (part.captured(kLevel).isEmpty()) {
      if (headings.empty()) continue;
      for (const QString& word : part.captured(kWords).split(QLatin1Char(';'), Qt::SkipEmptyParts))
        headings.back().indexWords << word.simplified();
      continue;
    }
    HelpHeading heading;
    heading.level = part.captured(kLevel).toInt();
    heading.title = QTextDocumentFragment::fromHtml(part.captured(kTitle)).toPlainText().simplified();
    heading.link = file + QLatin1Char('#') + part.captured(kId);
    headings.push_back(heading);
  }
  return headings;
}

std::vector<HelpHeading> HelpHeadings() {
  std::vector<HelpHeading> all;
  for (const HelpPage& page : HelpPages()) {
    const QString file = QString::fromLatin1(page.file);
    const std::vector<HelpHeading> headings = HelpHeadingsOf(file, HelpPageText(file));
    all.insert(all.end(), headings.begin(), headings.end());
  }
  return all;
}

std::vector<HelpIndexRow> HelpIndex() {
  std::vector<HelpIndexRow> rows;
  for (const HelpHeading& heading : HelpHeadings())
    for (const QString& word : heading.indexWords) rows.push_back({word, heading.link});
  QCollator french(QLocale(QLocale::French, QLocale::France));
  french.setCaseSensitivity(Qt::CaseInsensitive);
  std::stable_sort(rows.begin(), rows.end(), [&](const HelpIndexRow& a, const HelpIndexRow& b) {
    return french.compare(a.word, b.word) < 0;
  });
  return rows;
}

}  // namespace orbisol
