// Collects the warnings of the toolkit during its life.
//
//   const CWarnings warnings;
//   …
//   EXPECT_EQ(warnings.Texts(), std::vector<std::string>());
#pragma once

#include <QString>

#include <string>
#include <vector>

namespace orbisol {

class CWarnings {
 public:
  CWarnings() : m_before(qInstallMessageHandler(Take)) { Taken().clear(); }
  ~CWarnings() { qInstallMessageHandler(m_before); }
  CWarnings(const CWarnings&) = delete;
  CWarnings& operator=(const CWarnings&) = delete;

  static const std::vector<std::string>& Texts() { return Taken(); }

 private:
  static std::vector<std::string>& Taken() {
    static std::vector<std::string> texts;
    return texts;
  }

  static void Take(QtMsgType type, const QMessageLogContext&, const QString& text) {
    if (type == QtDebugMsg || type == QtInfoMsg) return;
    // Warnings of the off-screen platform about itself do not count.
    for (const char* const known : {"propagateSizeHints", "raise()", "does not support grabbing"})
      if (text.contains(QLatin1String(known))) return;
    Taken().push_back(text.toStdString());
  }

  QtMessageHandler m_before;
};

}  // namespace orbisol
