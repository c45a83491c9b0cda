#include "ui/window/help.h"

#include <QApplication>
#include <QLineEdit>
#include <QListWidget>
#include <QPointer>
#include <QRegularExpression>
#include <QTest>
#include <QTreeWidget>

#include <gtest/gtest.h>

#include <set>

#include "resources/strings.h"
#include "ui/toolkit/plain_text.h"
#include "ui/window/help_text.h"

namespace orbisol {
namespace {

CHelpWindow* OpenHelp() {
  for (QWidget* const widget : QApplication::topLevelWidgets())
    if (auto* const window = dynamic_cast<CHelpWindow*>(widget); window && window->isVisible()) return window;
  return nullptr;
}

// Every page of the list can be shown, and all its links lead somewhere.
TEST(HelpTextTest, PagesHaveTitlesAndTheirLinksResolve) {
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
    EXPECT_EQ(text.count(QRegularExpression(QStringLiteral("<h[12]"))),
              static_cast<qsizetype>(HelpHeadingsOf(file, text).size()));
    for (auto links = QRegularExpression(QStringLiteral("(href|src)=\"([^\"]*)\"")).globalMatch(text);
         links.hasNext();) {
      const QString link = links.next().captured(2);
      EXPECT_EQ(targets.count(link.startsWith(QLatin1Char('#')) ? file + link : link), 1U)
          << qPrintable(link);
    }
  }
}

TEST(HelpWindowTest, F1ShowsTheTopicAndNothingOutsideTheHelpIsLoaded) {
  QWidget window;
  AddHelpKey(window, kHelpMainWindow);
  window.show();
  window.activateWindow();
  QApplication::processEvents();
  QTest::keyClick(&window, Qt::Key_F1);
  CHelpWindow* const help = OpenHelp();
  ASSERT_NE(help, nullptr);
  CHelpBrowser& browser = help->Browser();
  EXPECT_EQ(browser.source().toString(), QStringLiteral("main_window.html#fenetre"));
  EXPECT_TRUE(browser.toPlainText().contains(QLatin1String("22 septembre 1792")));

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
  EXPECT_EQ(OpenHelp(), help);  // one window
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
