#include "ui/window/help.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QPointer>
#include <QShortcut>
#include <QSplitter>
#include <QTabWidget>
#include <QToolBar>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>

#include "resources/strings.h"
#include "ui/toolkit/plain_text.h"
#include "ui/window/help_text.h"
#include "ui/window/tool_icons.h"

namespace orbisol {
namespace {

constexpr int kWidthInLetters = 130;
constexpr int kHeightInLines = 34;
constexpr int kListInLetters = 40;  // width of contents and index, in letters
constexpr int kLinkRole = Qt::UserRole;

enum HelpPiece { kTitle, kContents, kIndex, kFilter, kPage, kBack, kForward };  // pieces of kTextHelp

QString Caption(HelpPiece piece) { return TablePiece(kTextHelp, piece); }

QString FileOf(const QString& link) { return link.section(QLatin1Char('#'), 0, 0); }

// Returns the help window, and makes it if there is none. A window that a modal dialog would block is
// replaced by one that belongs to the dialog.
CHelpWindow& HelpWindow() {
  QWidget* const dialog = QApplication::activeModalWidget();
  for (QWidget* const widget : QApplication::topLevelWidgets()) {
    auto* const found = dynamic_cast<CHelpWindow*>(widget);
    if (found == nullptr) continue;
    if (dialog == nullptr || found->parentWidget() == dialog) return *found;
    found->close();
  }
  auto* const made = new CHelpWindow(dialog);
  made->setAttribute(Qt::WA_DeleteOnClose);
  return *made;
}

void BringForward(QWidget& window) {
  window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
  window.show();
  window.raise();
  window.activateWindow();
}

}  // namespace

void ShowHelp(int topic) {
  CHelpWindow& window = HelpWindow();
  window.ShowTopic(topic);
  BringForward(window);
}

void ShowHelpContents() {
  CHelpWindow& window = HelpWindow();
  window.ShowContents();
  BringForward(window);
}

void ShowHelpIndex() {
  CHelpWindow& window = HelpWindow();
  window.ShowIndex();
  BringForward(window);
}

void AddHelpKey(QWidget& window, int topic) {
  auto* const key = new QShortcut(QKeySequence(Qt::Key_F1), &window);
  QObject::connect(key, &QShortcut::activated, &window, [topic] { ShowHelp(topic); });
}

CHelpBrowser::CHelpBrowser(QWidget* parent) : QTextBrowser(parent) {
  setOpenLinks(false);
  document()->setDocumentMargin(fontMetrics().lineSpacing());
  // The text cursor lets a screen reader follow the page line by line.
  setTextInteractionFlags(Qt::TextBrowserInteraction | Qt::TextSelectableByKeyboard);
  connect(this, &QTextBrowser::anchorClicked, this, [this](const QUrl& url) {
    const QString link = url.toString();
    ShowPage(link.startsWith(QLatin1Char('#')) ? FileOf(source().toString()) + link : link);
  });
}

void CHelpBrowser::ShowPage(const QString& link) {
  if (!HelpPageText(FileOf(link)).isEmpty()) setSource(QUrl(link), QTextDocument::HtmlResource);
}

QVariant CHelpBrowser::loadResource(int type, const QUrl& name) {
  if (type != QTextDocument::HtmlResource) return {};
  const QString text = HelpPageText(FileOf(name.toString()));
  return text.isEmpty() ? QVariant() : QVariant(text);
}

CHelpWindow::CHelpWindow(QWidget* parent)
    : QWidget(parent, Qt::Window), m_browser(new CHelpBrowser), m_tabs(new QTabWidget) {
  setWindowTitle(Caption(kTitle));
  setWindowIcon(ProgramIcon());
  setAttribute(Qt::WA_QuitOnClose, false);
  m_browser->setAccessibleName(Caption(kPage));
  m_tabs->addTab(MakeContents(), Caption(kContents));
  m_tabs->addTab(MakeIndex(), Caption(kIndex));

  auto* const bar = new QToolBar;
  const auto addStep = [&](const char* icon, const QString& text, void (QTextBrowser::*step)(),
                           void (QTextBrowser::*available)(bool), QKeySequence::StandardKey key) {
    QAction* const action = bar->addAction(ToolIcon(icon), text);
    action->setShortcut(key);
    action->setEnabled(false);
    connect(action, &QAction::triggered, m_browser, step);
    connect(m_browser, available, action, &QAction::setEnabled);
  };
  addStep("back", Caption(kBack), &QTextBrowser::backward, &QTextBrowser::backwardAvailable,
          QKeySequence::Back);
  addStep("forward", Caption(kForward), &QTextBrowser::forward, &QTextBrowser::forwardAvailable,
          QKeySequence::Forward);

  auto* const both = new QSplitter;
  both->addWidget(m_tabs);
  both->addWidget(m_browser);
  both->setStretchFactor(1, 1);
  both->setChildrenCollapsible(false);
  auto* const column = new QVBoxLayout(this);
  column->setContentsMargins({});
  column->setSpacing(0);
  column->addWidget(bar);
  column->addWidget(both, 1);

  const QFontMetrics metrics = fontMetrics();
  const int letter = metrics.averageCharWidth();
  both->setSizes({kListInLetters * letter, (kWidthInLetters - kListInLetters) * letter});
  resize(kWidthInLetters * letter, kHeightInLines * metrics.lineSpacing());
  connect(m_browser, &QTextBrowser::sourceChanged, this, &CHelpWindow::MarkHeading);
}

QWidget* CHelpWindow::MakeContents() {
  m_contents = new QTreeWidget;
  m_contents->setHeaderHidden(true);
  m_contents->setFrameStyle(QFrame::NoFrame);
  m_contents->setAccessibleName(Caption(kContents));
  QTreeWidgetItem* page = nullptr;
  for (const HelpHeading& heading : HelpHeadings()) {
    QTreeWidgetItem* const item =
        heading.level == 1 || page == nullptr ? new QTreeWidgetItem(m_contents) : new QTreeWidgetItem(page);
    if (heading.level == 1) page = item;
    item->setText(0, heading.title);
    item->setData(0, kLinkRole, heading.link);
  }
  connect(m_contents, &QTreeWidget::currentItemChanged, this, [this](const QTreeWidgetItem* item) {
    if (item != nullptr) m_browser->ShowPage(item->data(0, kLinkRole).toString());
  });
  return m_contents;
}

QWidget* CHelpWindow::MakeIndex() {
  auto* const page = new QWidget;
  auto* const filter = new QLineEdit;
  m_index = new QListWidget;
  m_indexFilter = filter;
  filter->setPlaceholderText(Caption(kFilter));
  filter->setAccessibleName(Caption(kFilter));
  filter->setClearButtonEnabled(true);
  m_index->setFrameStyle(QFrame::NoFrame);
  m_index->setAccessibleName(Caption(kIndex));
  for (const HelpIndexRow& row : HelpIndex()) {
    auto* const item = new QListWidgetItem(row.word, m_index);
    item->setData(kLinkRole, row.link);
  }
  auto* const column = new QVBoxLayout(page);
  column->setContentsMargins({});
  column->addWidget(filter);
  column->addWidget(m_index, 1);

  const auto show = [this](const QListWidgetItem* item) {
    if (item != nullptr) m_browser->ShowPage(item->data(kLinkRole).toString());
  };
  connect(m_index, &QListWidget::currentItemChanged, this, show);
  connect(m_index, &QListWidget::itemClicked, this, show);
  connect(filter, &QLineEdit::textChanged, this, [this](const QString& text) {
    for (int i = 0; i < m_index->count(); ++i)
      m_index->item(i)->setHidden(!m_index->item(i)->text().contains(text.trimmed(), Qt::CaseInsensitive));
  });
  // Enter goes to the first word that the filter leaves.
  connect(filter, &QLineEdit::returnPressed, this, [this] {
    for (int i = 0; i < m_index->count(); ++i) {
      if (m_index->item(i)->isHidden()) continue;
      m_index->setCurrentRow(i);
      m_index->setFocus();
      return;
    }
  });
  return page;
}

// Marks the heading of the page shown in the contents, whichever way led to it.
void CHelpWindow::MarkHeading(const QUrl& source) {
  const QString shown = source.toString();
  const QSignalBlocker quiet(m_contents);
  for (QTreeWidgetItemIterator item(m_contents); *item != nullptr; ++item)
    if ((*item)->data(0, kLinkRole).toString() == shown) {
      m_contents->setCurrentItem(*item);
      (*item)->setExpanded(true);
    }
}

void CHelpWindow::ShowTopic(int topic) {
  const auto pages = HelpPages();
  const auto found =
      std::find_if(pages.begin(), pages.end(), [&](const HelpPage& page) { return page.topic == topic; });
  const QString file = QString::fromLatin1((found == pages.end() ? pages.front() : *found).file);
  for (const HelpHeading& heading : HelpHeadingsOf(file, HelpPageText(file))) {
    m_browser->ShowPage(heading.link);
    break;
  }
  m_tabs->setCurrentWidget(m_contents);
  m_browser->setFocus();
}

void CHelpWindow::ShowContents() {
  if (m_browser->source().isEmpty()) ShowTopic(HelpPages().front().topic);
  m_tabs->setCurrentWidget(m_contents);
  m_contents->setFocus();
}

void CHelpWindow::ShowIndex() {
  if (m_browser->source().isEmpty()) ShowTopic(HelpPages().front().topic);
  m_tabs->setCurrentWidget(m_index->parentWidget());
  m_indexFilter->setFocus();
}

void CHelpWindow::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape) {
    close();
  } else {
    QWidget::keyPressEvent(event);
  }
}

}  // namespace orbisol
