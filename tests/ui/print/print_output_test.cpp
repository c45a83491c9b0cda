// Jobs of the print frame: what its dialogs propose, where pages go, and what is said when they do not get
// there.

#include <QAccessible>
#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPageSetupDialog>
#include <QPaintEngine>
#include <QPrintDialog>
#include <QPrintEngine>
#include <QPrinter>
#include <QProgressDialog>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QSpinBox>
#include <QStatusBar>
#include <QTabWidget>
#include <QVBoxLayout>

#include "tests/ui/print/frame_fixture.h"
#include "ui/print/print_dialog.h"
#include "ui/print/print_years_dlg.h"
#include "ui/print/toolkit_dialogs.h"

namespace orbisol {
namespace {

TEST_F(PrintFrameTest, NamesOfFilesSayWhatIsInThem) {
  const struct {
    int year, lastYear;
    CommandId period;
    const char16_t* calendar;
    const char* name;
  } kNames[] = {
      {2024, 2024, kCmdPeriodMonth, u"Calendar", "Calendrier mai 2024"},
      {2024, 2024, kCmdPeriodYear, u"Famille", "Famille 2024"},
      {2024, 2024, kCmdPeriodQuarter2, u"", "Calendrier avril à juin 2024"},
      {-44, -44, kCmdPeriodMonth, u"", "Calendrier mai 45 av. JC"},
      {1900, 1999, kCmdPeriodYear, u"", "Calendrier 1900 à 1999"},
  };
  for (const auto& row : kNames) {
    PrintJob job(row.year, 5);
    job.ChoosePeriod(row.period);
    EXPECT_EQ(ProposedName(job.WithYears(row.year, row.lastYear), row.calendar), QString::fromUtf8(row.name));
  }
}

TEST_F(PrintFrameTest, ExportWritesTheProposedFileAndSaysSo) {
  Choose(kCmdPeriodQuarter2);
  QString path;
  ChooseAndAnswer<QFileDialog>(kCmdExportPdf, [&](QFileDialog& dialog) {
    EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Exporter en PDF"));
    path = dialog.selectedFiles().at(0);
    static_cast<QDialog&>(dialog).accept();
  });
  EXPECT_TRUE(path.endsWith(QString::fromUtf8("/Calendrier avril à juin 2024.pdf"))) << qPrintable(path);
  EXPECT_EQ(PagesIn(path), 3);
  EXPECT_EQ(frame->statusBar()->currentMessage(), QString::fromUtf8("3 pages écrites dans ") + path);
  EXPECT_TRUE(messages.shown.isEmpty());
}

// All choices of pages also hold for a file, and with one page what is said has no number.
TEST_F(PrintFrameTest, ThePrintDialogWritesTheChosenPagesIntoAFile) {
  const struct {
    const char* list;  // empty: from page 3 to page 4
    int copies;
    qsizetype pages;
    const char* said;
  } kJobs[] = {{"", 1, 2, "2 pages écrites dans %1"},
               {"1-3, 5,80", 2, 8, "8 pages écrites dans %1"},
               {"5", 1, 1, "Une page écrite dans %1"}};
  Choose(kCmdPeriodYear);
  int number = 0;
  for (const auto& job : kJobs) {
    SCOPED_TRACE(job.said);
    const QString path = PathOf("range%1.pdf").arg(++number);
    ChooseAndAnswer<QPrintDialog>(kCmdPrintPages, [&](QPrintDialog& dialog) {
      EXPECT_EQ(dialog.minPage(), 1);
      EXPECT_EQ(dialog.maxPage(), 12);
      EXPECT_FALSE(dialog.findChild<QTabWidget*>(QStringLiteral("tabs"))->isTabEnabled(1)) << "colors, sides";
      auto* const file = dialog.findChild<QLineEdit*>(QStringLiteral("filename"));
      EXPECT_TRUE(file->text().endsWith(QLatin1String("/Calendrier 2024.pdf"))) << qPrintable(file->text());
      EXPECT_EQ(file->text() == PathOf("Calendrier 2024.pdf"), number > 1)
          << "in the folder of the last file";
      auto* const reverse = dialog.findChild<QCheckBox*>(QStringLiteral("reverse"));
      EXPECT_FALSE(reverse->isChecked());
      reverse->click();
      file->setText(path);
      const bool isList = *job.list != '\0';
      dialog
          .findChild<QRadioButton*>(isList ? QStringLiteral("pagesRadioButton")
                                           : QStringLiteral("printRange"))
          ->click();
      dialog.findChild<QSpinBox*>(QStringLiteral("from"))->setValue(3);
      dialog.findChild<QSpinBox*>(QStringLiteral("to"))->setValue(4);
      EXPECT_EQ(dialog.findChild<QSpinBox*>(QStringLiteral("copies"))->value(), 1);
      dialog.findChild<QSpinBox*>(QStringLiteral("copies"))->setValue(job.copies);
      auto* const list = dialog.findChild<QLineEdit*>(QStringLiteral("pagesLineEdit"));
      if (isList) {
        list->setText(QStringLiteral("x"));
        dialog.accept();
        EXPECT_TRUE(dialog.isVisible()) << "no list of pages";
      }
      list->setText(QString::fromUtf8(job.list));
      dialog.accept();
      EXPECT_TRUE(static_cast<CPrintDialog&>(dialog).Choice().isReversed);
    });
    EXPECT_EQ(PagesIn(path), job.pages);
    EXPECT_EQ(frame->statusBar()->currentMessage(), QString::fromUtf8(job.said).arg(path));
  }
  EXPECT_EQ(messages.errors.size(), 2U);
  EXPECT_EQ(frame->Job().currentPage, 0);
}

TEST_F(PrintFrameTest, EveryControlOfTheToolkitsDialogsIsNamed) {
  const auto check = [](QDialog& dialog) {
    for (QWidget* const control : dialog.findChildren<QWidget*>()) {
      if (control->focusPolicy() == Qt::NoFocus || qobject_cast<QTabWidget*>(control) != nullptr) continue;
      // Parts of others, and what drops down.
      if (control->objectName().startsWith(QLatin1String("qt_")) || control->window() != &dialog) continue;
      const QAccessibleInterface* const spoken = QAccessible::queryAccessibleInterface(control);
      const bool isChoice = qobject_cast<QComboBox*>(control) != nullptr;
      const QString name = spoken->text(isChoice ? QAccessible::Description : QAccessible::Name);
      EXPECT_TRUE(name.size() > 1 && name != QStringLiteral("...")) << qPrintable(control->objectName());
    }
    dialog.reject();
  };
  ChooseAndAnswer<QPrintDialog>(kCmdPrintPages, check);
  ChooseAndAnswer<QPageSetupDialog>(kCmdPageSetup, check);
  ChooseAndAnswer<CPrintYearsDlg>(kCmdPrintYears, check);
}

TEST_F(PrintFrameTest, ADialogHigherThanTheScreenScrollsAboveItsButtons) {
  QDialog dialog;
  auto* const column = new QVBoxLayout(&dialog);
  auto* const folded = new QWidget;
  for (auto* const part : {new QWidget, folded}) {
    part->setMinimumSize(part == folded ? 400 : 300, 1500);
    column->addWidget(part);
  }
  folded->hide();
  auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Ok);
  column->addWidget(buttons);
  FitScreen(dialog);
  dialog.show();
  folded->show();
  Settle();
  EXPECT_LE(dialog.height(), dialog.screen()->availableSize().height());
  EXPECT_TRUE(dialog.rect().contains(buttons->geometry()));
  const auto* const area = dialog.findChild<QScrollArea*>();
  ASSERT_NE(area, nullptr);
  EXPECT_GT(area->verticalScrollBar()->maximum(), 2000);
  EXPECT_EQ(area->horizontalScrollBar()->maximum(), 0);
}

TEST_F(PrintFrameTest, WhatCannotBeWrittenIsSaidAndLeavesNoFile) {
  const CPagePainter pages(frame->Job(), {Content(), Display(), Rules(), {}, {}, frame->font()});
  const QString missing = PathOf("no/such/folder/a.pdf");
  frame->Output().WriteTo(missing, pages, frame->Paper(), AllPages(frame->Job()));
  ASSERT_EQ(messages.errors.size(), 1U);
  EXPECT_TRUE(messages.errors[0].startsWith(QStringLiteral("Le fichier %1 n'a pas pu").arg(missing)));
  const QString path = PathOf("beyond.pdf");
  frame->Output().WriteTo(path, pages, frame->Paper(), {});
  ASSERT_EQ(messages.errors.size(), 2U);
  EXPECT_TRUE(messages.errors[1].contains(QLatin1String("n'en a qu'une"))) << qPrintable(messages.errors[1]);
  EXPECT_FALSE(QFile::exists(path));
}

// A printer that takes its pages, or none. The toolkit knows none on a machine without printers but those
// that write a file.
class CFakePrinter : public QPrinter {
 public:
  explicit CFakePrinter(bool isBroken) {
    m_engine.isBroken = isBroken;
    setEngines(&m_engine, isBroken ? nullptr : &m_pages);
  }

 private:
  struct Engine : QPrintEngine {
    void setProperty(PrintEnginePropertyKey, const QVariant&) override {}
    QVariant property(PrintEnginePropertyKey key) const override {
      if (key == PPK_QPageLayout) return QVariant::fromValue(QPageLayout());
      return key == PPK_PrinterName ? QVariant(QStringLiteral("Laser")) : QVariant(kPrintResolution);
    }
    bool newPage() override { return !isBroken; }
    bool abort() override { return true; }
    int metric(QPaintDevice::PaintDeviceMetric) const override { return 1000; }
    QPrinter::PrinterState printerState() const override {
      return isBroken ? QPrinter::Error : QPrinter::Idle;
    }
    bool isBroken = false;
  };
  struct Pages : QPaintEngine {
    Pages() : QPaintEngine(AllFeatures) {}
    bool begin(QPaintDevice*) override { return true; }
    bool end() override { return true; }
    void updateState(const QPaintEngineState&) override {}
    void drawPixmap(const QRectF&, const QPixmap&, const QRectF&) override {}
    void drawPath(const QPainterPath&) override {}
    void drawPolygon(const QPointF*, int, PolygonDrawMode) override {}
    Type type() const override { return User; }
  };
  Engine m_engine;
  Pages m_pages;
};

TEST_F(PrintFrameTest, WhatBecameOfTheJobOfAPrinterIsSaid) {
  const struct {
    bool isBroken;
    ServerAnswer answer;
    const char* said;
    bool isFault;
  } kJobs[] = {
      {true, ServerAnswer::kTaken, "«\u00A0Laser\u00A0» n'a pas accepté", true},
      {false, ServerAnswer::kFailed, "«\u00A0Laser\u00A0» n'a pas accepté", true},
      {false, ServerAnswer::kNotAccepting, "«\u00A0Laser\u00A0» est fermée", true},
      {false, ServerAnswer::kHeld, "«\u00A0Laser\u00A0» est arrêtée", true},
      {false, ServerAnswer::kTaken, "Une page envoyée à Laser", false},
  };
  const auto spoken = [&] {
    auto* const notice = frame->findChild<QObject*>(QStringLiteral("notice"));
    return notice == nullptr ? QString()
                             : QAccessible::queryAccessibleInterface(notice)->text(QAccessible::Name);
  };
  Choose(kCmdToggleStatusBar);
  for (const auto& job : kJobs) {
    SCOPED_TRACE(job.said);
    messages.errors.clear();
    CFakePrinter printer(job.isBroken);
    const CPagePainter pages(frame->Job(), {Content(), Display(), Rules(), {}, {}, frame->font()});
    frame->Output().PrintOn(printer, pages, frame->Paper(), AllPages(frame->Job()),
                            [&](const QString& asked) {
                              EXPECT_EQ(asked, QStringLiteral("Laser"));
                              return job.answer;
                            });
    EXPECT_EQ(messages.errors.size(), job.isFault ? 1U : 0U);
    const QString said = job.isFault ? messages.errors.front() : frame->statusBar()->currentMessage();
    EXPECT_TRUE(said.contains(QString::fromUtf8(job.said))) << qPrintable(said);
    EXPECT_EQ(spoken(), job.isFault ? QString() : said);
    EXPECT_EQ(frame->statusBar()->isVisible(), !job.isFault) << "it appears for what is told there";
  }
  frame->statusBar()->clearMessage();
  EXPECT_FALSE(frame->statusBar()->isVisible());
  Choose(kCmdPeriodYear);
  Choose(kCmdNextPage);
  EXPECT_TRUE(spoken().startsWith(QString::fromUtf8("Aperçu, page 2 sur 12. Février 2024")));
}

class LongJobTest : public PrintFrameTest {
 protected:
  LongJobTest() {
    Choose(kCmdPeriodYear);
    Choose(kCmdFormatMonth);
    QFile before(path);
    EXPECT_TRUE(before.open(QIODevice::WriteOnly) && before.write("before") == 6);
  }

  // Exports many years, more than a computer prints until `act` is called with the progress that is shown.
  void ExportCentury(const std::function<void(QProgressDialog&)>& act) {
    QTimer look;
    look.callOnTimeout([&] {
      auto* const progress = qobject_cast<QProgressDialog*>(QApplication::activeModalWidget());
      if (progress == nullptr || progress->value() < 1) return;
      look.stop();
      act(*progress);
    });
    look.start(1);
    ChooseAndAnswer<CPrintYearsDlg>(kCmdPrintYears, [&](CPrintYearsDlg& dialog) {
      const QList<QSpinBox*> years = dialog.findChildren<QSpinBox*>();
      years.at(0)->setValue(-3999);
      years.at(1)->setValue(3999);
      QTimer::singleShot(0, qApp, [&] {
        auto* const files = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(files, nullptr);
        files->setOption(QFileDialog::DontConfirmOverwrite);
        files->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(path);
        static_cast<QDialog*>(files)->accept();
      });
      dialog.accept();
    });
    EXPECT_FALSE(look.isActive());
  }
  QByteArray Bytes() const {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  }

  const QString path = PathOf("century.pdf");
};

TEST_F(LongJobTest, ACancelledJobLeavesTheFileThatWasThere) {
  ExportCentury([&](QProgressDialog& progress) {
    EXPECT_EQ(progress.maximum(), 7999 * 12);
    EXPECT_EQ(progress.labelText(), QStringLiteral("Page %1 sur 95988").arg(progress.value()));
    Choose(kCmdPeriodMonth);
    EXPECT_TRUE(frame->Job().IsChecked(kCmdPeriodYear)) << "one job at a time";
    progress.cancel();
  });
  EXPECT_EQ(Bytes(), "before");
  EXPECT_TRUE(frame->statusBar()->currentMessage().startsWith(QLatin1String("Exportation interrompue")));
  EXPECT_EQ(frame->Job().PageCount(), 12) << "the preview keeps its year";
  EXPECT_TRUE(messages.shown.isEmpty());
}

TEST_F(LongJobTest, ClosingTheFrameEndsItsJobInSilence) {
  ExportCentury([&](QProgressDialog&) { frame->close(); });
  EXPECT_EQ(Bytes(), "before");
  EXPECT_TRUE(messages.shown.isEmpty() && frame->statusBar()->currentMessage().isEmpty());
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_TRUE(frame.isNull());
}

TEST_F(PrintFrameTest, ClosingTheFrameClosesItsDialogs) {
  ChooseAndAnswer<QPrintDialog>(kCmdPrintPages, [&](QPrintDialog&) { frame->close(); });
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_TRUE(frame.isNull());
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(PrintFrameTest, YearsAreCountedAndMustBeInOrder) {
  PrintJob job(-44, 5);
  job.ChoosePeriod(kCmdPeriodHalf1);
  CPrintYearsDlg dialog(job);
  const QList<QSpinBox*> years = dialog.findChildren<QSpinBox*>();
  const auto* const pages = dialog.findChild<QLabel*>(QStringLiteral("pages"));
  const auto* const go = dialog.findChild<QPushButton*>(QString(), Qt::FindChildrenRecursively);
  EXPECT_EQ(years.at(0)->text(), QStringLiteral("-44 (45 av. JC)"));
  EXPECT_EQ(pages->text(), QString::fromUtf8("Années\u00A0: 10, pages\u00A0: 60"));
  years.at(1)->setValue(3955);
  EXPECT_EQ(pages->text(), QString::fromUtf8("Années\u00A0: 4 000, pages\u00A0: 24 000"));
  EXPECT_TRUE(go->isEnabled());
  years.at(1)->setValue(-45);
  EXPECT_FALSE(go->isEnabled());
  EXPECT_EQ(years.at(1)->accessibleDescription(), pages->text());
}

}  // namespace
}  // namespace orbisol
