// Running a job: aborts, ranges, and disks and printers that fail. Whatever happens, a file under the chosen
// name is the old one or a whole new one.

#include "ui/print/print_run.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <cerrno>
#include <set>

#include "tests/support/fault_shim.h"
#include "tests/ui/print/print_fixture.h"

namespace orbisol {
namespace {

bool GoOn(int, int) { return true; }

class PrintRunTest : public testing::Test {
 protected:
  RunResult Write(const PageList& list, const PageProgress& progress = GoOn) {
    return WritePdf(m_pages, Paper(QPageLayout::Portrait), m_path, list, progress);
  }

  QByteArray Bytes() const {
    QFile file(m_path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  }

  void PutOldFile() {
    QFile file(m_path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("old");
  }

  QStringList Names() const { return QDir(m_folder.path()).entryList(QDir::Files | QDir::Hidden); }

  QTemporaryDir m_folder;
  QString m_path = m_folder.filePath(QStringLiteral("Année.pdf"));
  CPagePainter m_pages{JobOf(kCmdFormatMonth, kCmdPeriodYear), SourceOfTests()};
};

TEST_F(PrintRunTest, AnAbortLeavesWhatWasThere) {
  std::vector<int> steps;
  const auto stop = [&](int done, int count) {
    EXPECT_EQ(count, 12);
    steps.push_back(done);
    return done < 5;
  };
  EXPECT_EQ(Write(AllPages(m_pages.Job()), stop), RunResult::kAborted);
  EXPECT_EQ(steps, (std::vector<int>{0, 1, 2, 3, 4, 5}));
  EXPECT_EQ(Names(), QStringList());
  PutOldFile();
  EXPECT_EQ(Write(AllPages(m_pages.Job()), stop), RunResult::kAborted);
  EXPECT_EQ(Write(AllPages(m_pages.Job()), [](int done, int count) { return done < count; }),
            RunResult::kAborted)
      << "also behind the last page";
  EXPECT_EQ(Bytes(), "old");
  EXPECT_EQ(Names().size(), 1);
}

TEST_F(PrintRunTest, ChoicesOfPagesEndAtTheLastPage) {
  const struct {
    PageChoice choice;
    PageList pages;
  } kChoices[] = {
      {{.ranges = {{1, 3}, {5, 5}}}, {0, 1, 2, 4}},
      {{.ranges = {{11, 400}}}, {10, 11}},
      {{.ranges = {{11, 400}}, .isReversed = true, .copies = 2}, {11, 10, 11, 10}},
      {{.ranges = {{0, 2}}, .copies = 2, .isCollated = false}, {0, 0, 1, 1}},
      {{.ranges = {{13, 20}}}, {}},
      {{.ranges = {{5, 3}}}, {}},
      {{}, {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11}},
  };
  for (const auto& row : kChoices) EXPECT_EQ(PagesOf(m_pages.Job(), row.choice), row.pages);
  EXPECT_EQ(Write({}), RunResult::kNoPages);
  EXPECT_EQ(Names(), QStringList()) << "nothing is written for no pages";
}

// A printer keeps the paper and the margins that were set up, as far as it can.
TEST(PaperTest, IsThatOfThePrinterWhereItCannotTakeAnother) {
  const auto layout = [](QPageSize::PageSizeId size, double margin, const QMarginsF& least) {
    return QPageLayout(QPageSize(size), QPageLayout::Landscape, QMarginsF(margin, margin, margin, margin),
                       QPageLayout::Millimeter, least);
  };
  const QPageLayout a4 = layout(QPageSize::A4, 10, {});
  EXPECT_EQ(LayoutOn(layout(QPageSize::A4, 20, {4, 4, 4, 5}), a4), a4);
  EXPECT_EQ(LayoutOn(layout(QPageSize::A4, 20, {6, 12, 6, 12}), a4).margins(), QMarginsF(12, 12, 12, 12));
  const QPageLayout letter = LayoutOn(layout(QPageSize::Letter, 20, {}), a4);
  EXPECT_EQ(letter.pageSize().id(), QPageSize::Letter);
  EXPECT_EQ(letter.margins(), a4.margins());
}

TEST_F(PrintRunTest, AFullDiskLeavesWhatWasThere) {
  EXPECT_EQ(Write({0, 1, 2}), RunResult::kDone);  // reads the fonts, which are not read again
  PutOldFile();
  FaultReport report;
  FaultShimBegin(0, 0, report);
  EXPECT_EQ(Write({0, 1, 2}), RunResult::kDone);
  FaultShimEnd();
  ASSERT_GT(report.calls, 3) << "the shim does not see the calls";
  EXPECT_GE(report.syncs, 1) << "a loss of power could leave half a file";
  const int calls = report.calls;
  std::set<std::string> failed;
  for (const int fault : {ENOSPC, EIO}) {
    for (int call = 1; call <= calls; ++call) {
      PutOldFile();
      report = FaultReport();
      FaultShimBegin(call, fault, report);
      const RunResult result = Write({0, 1, 2});
      FaultShimEnd();
      SCOPED_TRACE(testing::Message() << "fault " << fault << " at call " << call << ", " << report.failed);
      failed.insert(report.failed);
      EXPECT_STRNE(report.failed, "-") << "no call failed";
      const QByteArray bytes = Bytes();
      if (result == RunResult::kDone) {
        EXPECT_TRUE(bytes.startsWith("%PDF") && bytes.trimmed().endsWith("%%EOF"));
        EXPECT_TRUE(report.failed != std::string("write") && report.failed != std::string("fsync"));
      } else {
        EXPECT_EQ(bytes, "old");
        EXPECT_EQ(result, RunResult::kFailed);
      }
      EXPECT_EQ(Names().size(), 1) << "a temporary file is left";
    }
  }
  EXPECT_TRUE(failed.count("write") == 1 && failed.count("fsync") == 1) << testing::PrintToString(failed);
}

}  // namespace
}  // namespace orbisol
