// The headings of the help's pages and the index words written below them, from which contents and index are
// made.
//
// A page is plain HTML. It begins with <h1 id="…"> and has <h2 id="…"> below; the comment after a heading
// names the words that lead to it:
//
//   <h2 id="touches">Les touches du mois</h2>
//   <!-- index: clavier; raccourcis clavier -->
//
//   for (const HelpHeading& heading : HelpHeadings()) …
#pragma once

#include <QString>
#include <QStringList>

#include <vector>

namespace orbisol {

struct HelpHeading {
  int level = 1;           // 1 the page, 2 a part of it
  QString title;           // plain text
  QString link;            // "keys.html#touches"
  QStringList indexWords;  // in the order of the page
};

// Returns the headings of a text in their order. `file` is the name its links begin with.
std::vector<HelpHeading> HelpHeadingsOf(const QString& file, const QString& text);

// Returns the headings of all pages, page by page.
std::vector<HelpHeading> HelpHeadings();

struct HelpIndexRow {
  QString word;
  QString link;
};

// Returns the words of all pages in the order of a French dictionary.
std::vector<HelpIndexRow> HelpIndex();

}  // namespace orbisol
