#include "ui/window/help.h"

#include <QDir>
#include <QRegularExpression>
#include <QTextDocument>

#include <set>

#include "core/date_reader.h"
#include "resources/menus.h"
#include "tests/support/dialog_test.h"
#include "ui/window/help_text.h"

namespace orbisol {
namespace {

// Every topic has its page and every page its topic, and all links lead somewhere.
TEST(HelpTextTest, TopicsHavePagesWhoseLinksResolve) {
  std::set<QString> targets;
  for (const HelpHeading& heading : HelpHeadings()) {
    EXPECT_FALSE(heading.title.isEmpty() || heading.title.contains(QLatin1Char('<')))
        << qPrintable(heading.link);
    EXPECT_FALSE(heading.indexWords.isEmpty()) << qPrintable(heading.link);
    EXPECT_TRUE(targets.insert(heading.link).second) << "twice: " << qPrintable(heading.link);
  }
  std::set<int> topics;
  for (const HelpPage& page : HelpPages()) {
    SCOPED_TRACE(page.file);
    const QString file = QString::fromLatin1(page.file);
    const QString text = HelpPageText(file);
    EXPECT_TRUE(topics.insert(page.topic).second);
    EXPECT_EQ(text.count(QLatin1String("<h1 ")), 1);
    QTextDocument shown;
    shown.setHtml(text);
    const QRegularExpression breakable(QStringLiteral(" [:;!?»]|« "));
    EXPECT_FALSE(breakable.match(shown.toRawText()).hasMatch());
    EXPECT_EQ(text.count(QRegularExpression(QStringLiteral("<h[12]"))),
              static_cast<qsizetype>(HelpHeadingsOf(file, text).size()));
    for (auto links = QRegularExpression(QStringLiteral("(href|src)=\"([^\"]*)\"")).globalMatch(text);
         links.hasNext();) {
      const QString link = links.next().captured(2);
      EXPECT_EQ(targets.count(link.startsWith(QLatin1Char('#')) ? file + link : link), 1U)
          << qPrintable(link);
    }
  }
  for (int topic = kHelpMainWindow; topic <= kHelpColors; ++topic)
    EXPECT_EQ(topics.count(topic), 1U) << topic;
  EXPECT_EQ(static_cast<std::size_t>(QDir(QStringLiteral(":/help")).entryList().size()), HelpPages().size());
}

// Returns the key of a menu in the words of a French keyboard: "Alt+Gauche".
QString FrenchKey(std::u16string_view key) {
  QString text = ToQString(key);
  constexpr std::pair<const char*, const char*> kWords[] = {
      {"Left", "Gauche"},  {"Right", "Droite"},    {"Home", "Début"},        {"Shift", "Maj"},
      {"Space", "Espace"}, {"PgUp", "Page préc."}, {"PgDown", "Page suiv."}, {"End", "Fin"}};
  for (const auto& [english, french] : kWords)
    text.replace(QLatin1String(english), QString::fromUtf8(french));
  return text;
}

// Returns the rows that a table of keys has for the commands of a menu.
std::set<QString> RowsOfKeys(std::span<const Menu> menus) {
  std::set<QString> rows;
  for (const Menu& menu : menus) {
    for (const MenuItem& item : menu.items) {
      if (item.shortcut.empty()) continue;
      QString command = ToQString(item.text);
      command.remove(QLatin1Char('&')).remove(QLatin1String("..."));
      rows.insert(QStringLiteral("<tr><td>%1</td><td>%2</td></tr>").arg(FrenchKey(item.shortcut), command));
    }
  }
  return rows;
}

TEST(HelpTextTest, TheTablesOfKeysHoldTheKeysOfTheMenusAndNoOther) {
  const auto rowsAfter = [](const char* heading) {
    const QString page = HelpPageText(QStringLiteral("keys.html"));
    const QString part = page.mid(page.indexOf(QLatin1String(heading)));
    std::set<QString> rows;
    for (const QString& row : part.section(QLatin1String("</table>"), 0, 0).split(QLatin1Char('\n')))
      if (row.startsWith(QLatin1String("<tr><td>"))) rows.insert(row);
    return rows;
  };
  EXPECT_EQ(rowsAfter("id=\"touches\""), RowsOfKeys(MainMenu()));
  EXPECT_EQ(rowsAfter("id=\"impression\""), RowsOfKeys(PrintMenu()));
}

// Returns the cells of the tables of a page, row by row.
std::vector<QStringList> RowsOf(const char* file) {
  std::vector<QStringList> rows;
  const QRegularExpression row(QStringLiteral("<tr>(<td>.*?)</tr>"));
  for (auto found = row.globalMatch(HelpPageText(QString::fromLatin1(file))); found.hasNext();) {
    rows.emplace_back();
    for (QString cell : found.next().captured(1).split(QStringLiteral("<td>"), Qt::SkipEmptyParts))
      rows.back()
          << cell.remove(QStringLiteral("</td>")).replace(QLatin1String("&minus;"), QStringLiteral("−"));
  }
  return rows;
}

TEST(HelpTextTest, DatesThatItOffersAreUnderstood) {
  const std::vector<QStringList> rows = RowsOf("go_to_date.html");
  EXPECT_GT(rows.size(), 5U);
  for (const QStringList& row : rows)
    for (const QString& text : row.front().split(QStringLiteral(", ")))
      EXPECT_FALSE(ReadDates(Utf16View(text), 20240515).readings.empty()) << qPrintable(text);
}

TEST(HelpTextTest, ReformsOfTheCountriesAreRight) {
  const std::vector<QStringList> rows = RowsOf("reform.html");
  EXPECT_GT(rows.size(), 10U);
  for (const QStringList& row : rows) {
    SCOPED_TRACE(qPrintable(row.front()));
    const DateReadings first = ReadDates(Utf16View(row.at(2)), 20240515);
    ASSERT_FALSE(first.readings.empty());
    const ScopedRules inForce(RulesWith(first.readings[0].date));
    const DateReadings last = ReadDates(Utf16View(row.at(1)), 20240515);
    ASSERT_FALSE(last.readings.empty());
    EXPECT_FALSE(first.readings[0].isOtherWeekday || last.readings[0].isOtherWeekday);
    EXPECT_EQ(Date(last.readings[0].date).DayNumber(), Rules().firstGregorianDayNumber - 1);
  }
}

TEST(HelpWindowTest, EveryRowOfContentsAndIndexShowsItsPage) {
  CHelpWindow help;
  help.ShowContents();
  std::set<QString> shown;
  for (QTreeWidgetItemIterator item(help.findChild<QTreeWidget*>()); *item != nullptr; ++item) {
    (*item)->treeWidget()->setCurrentItem(*item);
    shown.insert(help.Browser().source().toString());
  }
  for (const HelpHeading& heading : HelpHeadings())
    EXPECT_EQ(shown.count(heading.link), 1U) << qPrintable(heading.link);

  auto* const index = help.findChild<QListWidget*>();
  std::set<QString> words;
  for (int i = 0; i < index->count(); ++i) {
    index->setCurrentRow(i);
    EXPECT_EQ(shown.count(help.Browser().source().toString()), 1U);
    EXPECT_TRUE(words.insert(index->item(i)->text()).second)
        << "twice: " << qPrintable(index->item(i)->text());
  }
  EXPECT_GE(words.size(), shown.size());
}

TEST(HelpWindowTest, F1ShowsTheTopicAndNothingOutsideTheHelpIsLoaded) {
  QWidget window;
  AddHelpKey(window, kHelpMainWindow);
  window.show();
  window.activateWindow();
  QApplication::processEvents();
  QTest::keyClick(&window, Qt::Key_F1);
  QApplication::processEvents();
  auto* const help = dynamic_cast<CHelpWindow*>(QApplication::activeWindow());
  ASSERT_NE(help, nullptr);
  CHelpBrowser& browser = help->Browser();
  EXPECT_EQ(browser.source().toString(), QStringLiteral("main_window.html#fenetre"));
  EXPECT_TRUE(browser.toPlainText().contains(QLatin1String("jour actif")));

  const QString before = browser.toPlainText();
  for (const char* address : {"https://example.org/", "file:///etc/passwd", "/etc/passwd",
                              "qrc:/icons/help.svg", "../help/main_window.html", "none.html"}) {
    SCOPED_TRACE(address);
    const QUrl url(QString::fromLatin1(address));
    emit browser.anchorClicked(url);
    EXPECT_EQ(browser.toPlainText(), before);
    for (const int type :
         {QTextDocument::HtmlResource, QTextDocument::ImageResource, QTextDocument::StyleSheetResource})
      EXPECT_FALSE(browser.loadResource(type, url).isValid());
  }

  ShowHelpIndex();
  EXPECT_EQ(QApplication::activeWindow(), help) << "one window";
  auto* const words = help->findChild<QListWidget*>();
  auto* const filter = help->findChild<QLineEdit*>();
  EXPECT_EQ(help->focusWidget(), filter);
  QTest::keyClicks(filter, QStringLiteral("SIGNET"));
  QTest::keyClick(filter, Qt::Key_Return);
  EXPECT_EQ(browser.source().fragment(), QStringLiteral("ecart"));
  EXPECT_EQ(help->focusWidget(), words);
  EXPECT_EQ(help->findChild<QTreeWidget*>()->currentItem()->text(0), ToQString(u"L'écart entre deux dates"));
  browser.backward();
  EXPECT_EQ(browser.source().fragment(), QStringLiteral("fenetre"));

  const QPointer<CHelpWindow> alive(help);
  QTest::keyClick(help, Qt::Key_Escape);
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_TRUE(alive.isNull());
}

}  // namespace
}  // namespace orbisol
