// The print frame: its menus, what the preview shows and says, its place.

#include <QComboBox>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPageSetupDialog>
#include <QPainter>
#include <QRadioButton>
#include <QScrollBar>
#include <QStatusBar>
#include <QToolBar>
#include <QToolButton>
#include <QWheelEvent>

#include "resources/menus.h"
#include "tests/ui/print/frame_fixture.h"
#include "ui/toolkit/geometry.h"

namespace orbisol {
namespace {

TEST_F(PrintFrameTest, MenusAndButtonsFollowTheJob) {
  const struct {
    CommandId command;
    const char* caption;
    const char* buttons;  // period, format
    bool hasOptions;
  } kSteps[] = {
      {kCmdFormatQuarter, "Page 1 / 1 (Imprimer de avril 2024 à juin 2024)",
       "1er trimestre, 1 page par trimestre", true},
      {kCmdPeriodYear, "Page 1 / 4 (Imprimer de janvier 2024 à décembre 2024)", "Année, 1 page par trimestre",
       true},
      {kCmdLastPage, "Page 4 / 4 (Imprimer de janvier 2024 à décembre 2024)", "Année, 1 page par trimestre",
       true},
      {kCmdFormatScreen, "Page 1 / 12 (Imprimer de janvier 2024 à décembre 2024)",
       "Année, Mois tel qu'à l'écran", false},
      {kCmdPeriodMonth, "Page 1 / 1 (mai 2024)", "Mois, Mois tel qu'à l'écran", false},
      {kCmdFormatYear, "Page 1 / 1 (Imprimer de janvier 2024 à décembre 2024)", "Année, 1 page par an", true},
  };
  EXPECT_EQ(frame->windowTitle(), QStringLiteral("Orbisol - Imprimer"));
  for (const auto& step : kSteps) {
    SCOPED_TRACE(step.command);
    Choose(step.command);
    EXPECT_EQ(frame->StatusText(), QString::fromUtf8(step.caption));
    QStringList buttons;
    for (const QToolButton* const button : frame->findChild<QToolBar*>()->findChildren<QToolButton*>())
      if (button->menu() != nullptr && button->accessibleName().contains(u':'))
        buttons << button->text().trimmed();
    EXPECT_EQ(buttons.join(QStringLiteral(", ")), QString::fromUtf8(step.buttons));
    for (const CommandId option : {kCmdPrintHolidays, kCmdPrintEvents, kCmdPrintVacations, kCmdPrintMoon})
      EXPECT_TRUE(IsEnabled(option) == step.hasOptions && IsChecked(option) == step.hasOptions);
    for (const Menu& menu : PrintMenu()) {
      for (const MenuItem& item : menu.items) {
        const bool isOfJob = item.command >= kCmdPeriodMonth && item.command <= kCmdNextPage;
        if (!isOfJob) continue;
        EXPECT_EQ(IsEnabled(item.command), frame->Job().IsEnabled(item.command)) << item.command;
        EXPECT_EQ(IsChecked(item.command), frame->Job().IsChecked(item.command)) << item.command;
      }
    }
  }
  EXPECT_TRUE(IsEnabled(kCmdPeriodYear) && !IsEnabled(kCmdPeriodHalf2) && !IsEnabled(kCmdPrintJulian));
  Choose(kCmdPeriodYear);
  EXPECT_TRUE(IsChecked(kCmdPeriodYear)) << "chosen again";
}

TEST_F(PrintFrameTest, KeysTurnPagesAndFirstMoveThroughALargeOne) {
  Choose(kCmdPeriodYear);
  const auto page = [&] { return frame->Job().currentPage; };
  EXPECT_TRUE(frame->View().hasFocus());
  for (const auto& [key, shown] : {std::pair{Qt::Key_PageDown, 1},
                                   {Qt::Key_End, 11},
                                   {Qt::Key_PageDown, 11},
                                   {Qt::Key_PageUp, 10},
                                   {Qt::Key_Up, 9},
                                   {Qt::Key_Right, 10},
                                   {Qt::Key_Home, 0},
                                   {Qt::Key_Left, 0}}) {
    Press(key);
    EXPECT_EQ(page(), shown) << key;
  }
  EXPECT_FALSE(IsEnabled(kCmdPreviousPage) || IsEnabled(kCmdFirstPage));
  Press(Qt::Key_F10);
  ASSERT_NE(QApplication::activePopupWidget(), nullptr);
  QApplication::activePopupWidget()->close();
  frame->View().SetZoom(200);
  frame->View().ShowTop();
  QScrollBar& bar = *frame->View().verticalScrollBar();
  Press(Qt::Key_PageDown);
  EXPECT_TRUE(page() == 0 && bar.value() > 0) << "moves down the page";
  frame->View().ShowBottom();
  Press(Qt::Key_Down);
  EXPECT_EQ(page(), 0) << "an arrow stays on the page";
  Press(Qt::Key_PageDown);
  EXPECT_TRUE(page() == 1 && bar.value() == 0) << "the top of the next page";
  Press(Qt::Key_PageUp);
  EXPECT_TRUE(page() == 0 && bar.value() == bar.maximum()) << "the bottom of the page before";
}

TEST_F(PrintFrameTest, TheWheelTurnsPagesAndWithCtrlZoomsAroundThePointer) {
  Choose(kCmdPeriodYear);
  CPrtView& view = frame->View();
  const QPoint at = view.viewport()->rect().center() + QPoint(60, -40);
  const auto turn = [&](int angle, Qt::KeyboardModifiers modifiers) {
    QWheelEvent event(at, view.viewport()->mapToGlobal(at), {}, {0, angle}, {}, modifiers, Qt::NoScrollPhase,
                      false);
    QApplication::sendEvent(view.viewport(), &event);
    Settle();
  };
  const auto under = [&] {
    const QRect paper = view.PaperRect();
    return QPointF(1.0 * (at.x() - paper.x()) / paper.width(), 1.0 * (at.y() - paper.y()) / paper.height());
  };
  turn(-120, {});
  EXPECT_EQ(frame->Job().currentPage, 1);
  const QPointF before = under();
  const int percent = view.Percent();
  EXPECT_TRUE(IsChecked(kCmdFitPage));
  for (int i = 0; i < 6; ++i) turn(120, Qt::ControlModifier);
  EXPECT_GT(view.Percent(), percent + 50);
  EXPECT_LT((under() - before).manhattanLength(), 0.02);
  EXPECT_EQ(frame->Job().currentPage, 1);
  EXPECT_FALSE(IsChecked(kCmdFitPage));
}

TEST_F(PrintFrameTest, ZoomHasStepsAndBoundsAndFitsThePaper) {
  CPrtView& view = frame->View();
  const QSize room = view.viewport()->size();
  EXPECT_TRUE(QRect(QPoint(), room).contains(view.PaperRect()));
  EXPECT_EQ(view.horizontalScrollBar()->maximum() + view.verticalScrollBar()->maximum(), 0);
  Choose(kCmdFormatMonth);  // upright
  EXPECT_NEAR(1.0 * view.PaperRect().height() / view.PaperRect().width(), 297.0 / 210, 0.01);
  Choose(kCmdFitWidth);
  EXPECT_TRUE(IsChecked(kCmdFitWidth) && !IsChecked(kCmdFitPage));
  EXPECT_EQ(view.horizontalScrollBar()->maximum(), 0);
  EXPECT_GT(view.verticalScrollBar()->maximum(), 0);
  EXPECT_EQ(view.verticalScrollBar()->value(), 0);
  Choose(kCmdActualSize);
  EXPECT_NEAR(view.PaperRect().width(), 210 / 25.4 * view.logicalDpiX(), 1);
  int steps = 0;
  while (IsEnabled(kCmdZoomIn) && ++steps < 50) Choose(kCmdZoomIn);
  EXPECT_EQ(view.Percent(), CPrtView::kMostPercent);
  while (IsEnabled(kCmdZoomOut) && ++steps < 50) Choose(kCmdZoomOut);
  EXPECT_EQ(view.Percent(), CPrtView::kLeastPercent);
  EXPECT_LT(steps, 40);
  for (const Qt::Key key : {Qt::Key_Plus, Qt::Key_Equal, Qt::Key_Minus, Qt::Key_0}) {
    const int before = view.Percent();
    QTest::keyClick(frame->windowHandle(), key, Qt::ControlModifier);
    EXPECT_TRUE(key == Qt::Key_Minus ? view.Percent() < before : view.Percent() > before) << key;
  }
}

// The page in the view is the one that is printed, and follows the calendar; year and month stay.
TEST_F(PrintFrameTest, ThePreviewIsThePageAndFollowsTheCalendar) {
  Choose(kCmdFormatTable);
  frame->resize(1300, 1000);
  Choose(kCmdActualSize);
  Settle();
  const auto painted = [&] {
    const CPagePainter pages(frame->Job(), {Content(), Display(), Rules(), {}, {}, frame->font()});
    QImage page(frame->View().PaperRect().size(), QImage::Format_RGB32);
    page.fill(Qt::white);
    QPainter painter(&page);
    const double scale = frame->View().Percent() / 100.0 * frame->View().logicalDpiX() / kPrintResolution;
    painter.scale(scale, scale);
    pages.Paint(painter, frame->Job().currentPage, SpaceOf(frame->Paper(), kPrintResolution));
    return page;
  };
  const QImage before = Shown();
  EXPECT_EQ(before, painted());
  Content().dayEvents.push_back(Rule(kFixedDate, {.month = 5, .day = 15, .name = u"Nouvelle fête"}));
  frame->CalendarChanged();
  EXPECT_EQ(Shown(), painted());
  EXPECT_NE(Shown(), before);
  Choose(kCmdPrintHolidays);
  EXPECT_EQ(Shown(), painted());
  frame->View().SetZoom(50);
  EXPECT_EQ(Shown(), painted()) << "drawn anew, though the larger page held it";
  EXPECT_EQ(frame->StatusText(), QStringLiteral("Page 1 / 1 (mai 2024)"));
}

TEST_F(PrintFrameTest, ReadersAreToldThePageAndWhatItMarks) {
  const auto said = [&] {
    return frame->View().accessibleName() + u'\n' + frame->View().accessibleDescription();
  };
  Choose(kCmdFormatQuarter);
  Choose(kCmdPrintMoon);
  EXPECT_EQ(said(), QString::fromUtf8(
                        "Aperçu, page 1 sur 1\nAvril 2024, mai 2024, juin 2024. 1 mai 2024, jour férié : "
                        "Fête du Travail. 23 mai 2024, événement : Anniversaire."));
  Choose(kCmdPrintEvents);
  EXPECT_FALSE(said().contains(QLatin1String("Anniversaire")));
  Choose(kCmdFormatScreen);
  EXPECT_TRUE(said().contains(QLatin1String("Anniversaire")) &&
              said().contains(QLatin1String("Pleine lune")));
}

TEST_F(PrintFrameTest, WideFormatsAreProposedWideUntilTheUserChooses) {
  const auto isWide = [&] { return frame->Paper().orientation() == QPageLayout::Landscape; };
  EXPECT_TRUE(isWide());
  for (const auto& [format, wide] : {std::pair{kCmdFormatMonth, false},
                                     {kCmdFormatTable, true},
                                     {kCmdFormatQuarter, false},
                                     {kCmdFormatYear, true}}) {
    Choose(format);
    EXPECT_EQ(isWide(), wide) << format;
  }
  const auto setUp = [&](bool isKept) {
    ChooseAndAnswer<QPageSetupDialog>(kCmdPageSetup, [&](QPageSetupDialog& dialog) {
      dialog.findChild<QRadioButton*>(QStringLiteral("portrait"))->click();
      isKept ? dialog.accept() : dialog.reject();
    });
  };
  setUp(false);
  EXPECT_TRUE(isWide()) << "cancelled";
  setUp(true);
  EXPECT_FALSE(isWide());
  EXPECT_GT(frame->View().PaperRect().height(), frame->View().PaperRect().width());
  Choose(kCmdFormatTable);
  EXPECT_FALSE(isWide()) << "chosen by hand";
}

TEST_F(PrintFrameTest, APictureIsInsertedFromAFileThatIsOne) {
  Choose(kCmdFormatTable);
  QImage picture(40, 20, QImage::Format_RGB32);
  picture.fill(Qt::green);
  ASSERT_TRUE(picture.save(PathOf("picture.png")));
  QFile text(PathOf("text.png"));
  ASSERT_TRUE(text.open(QIODevice::WriteOnly) && text.write("no picture") > 0);
  text.close();
  const auto insert = [&](const char* name) {
    ChooseAndAnswer<QFileDialog>(kCmdPrintImage, [&](QFileDialog& dialog) {
      EXPECT_TRUE(dialog.nameFilters().at(0).startsWith(QString::fromUtf8("Toutes les images")));
      if (*name == '\0') return dialog.reject();
      dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(PathOf(name));
      static_cast<QDialog&>(dialog).accept();
    });
  };
  const QImage without = Shown();
  insert("");
  EXPECT_FALSE(IsChecked(kCmdPrintImage));
  insert("text.png");
  EXPECT_FALSE(IsChecked(kCmdPrintImage));
  EXPECT_EQ(messages.errors.size(), 1U);
  EXPECT_EQ(Shown(), without);
  insert("picture.png");
  EXPECT_TRUE(IsChecked(kCmdPrintImage));
  EXPECT_NE(Shown(), without);
  Choose(kCmdFormatScreen);
  EXPECT_FALSE(IsChecked(kCmdPrintImage) || IsEnabled(kCmdPrintImage));
  Choose(kCmdFormatTable);
  EXPECT_FALSE(IsChecked(kCmdPrintImage));
  EXPECT_EQ(Shown(), without);
}

TEST_F(PrintFrameTest, ItsPlaceAndItsStatusBarAreStored) {
  const auto stored = [&] {
    WindowLayout layout;
    const auto bytes = BinaryOf(*store.Read(), "PrintWindowLayout");
    if (bytes) LayoutFromBytes(*bytes, layout);
    return bytes ? std::optional(layout) : std::nullopt;
  };
  EXPECT_EQ(frame->frameGeometry(), QRect(50, 60, 800, 600));
  Choose(kCmdToggleStatusBar);
  Choose(kCmdToggleToolBar);
  EXPECT_FALSE(frame->statusBar()->isVisible() || IsChecked(kCmdToggleStatusBar));
  EXPECT_FALSE(frame->findChild<QToolBar*>()->isVisible() || IsChecked(kCmdToggleToolBar));
  frame->setGeometry(120, 130, 700, 500);
  Settle();
  const QRect place = frame->frameGeometry();
  EXPECT_FALSE(stored());
  Choose(kCmdClosePrint);
  ASSERT_TRUE(stored());
  EXPECT_EQ(stored()->rect, ToRect(place));
  EXPECT_FALSE(stored()->statusBarShown || stored()->maximized);
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_TRUE(frame.isNull());

  frame = new CPrintFrame(store, 2024, 5);
  frame->Open();
  EXPECT_FALSE(frame->statusBar()->isVisible());
  frame->showMinimized();
  const WindowLayout before = *stored();
  Display().printLayout.statusBarShown = true;
  frame->close();
  EXPECT_EQ(*stored(), before) << "nothing is stored of a minimized window";
}

}  // namespace
}  // namespace orbisol
