#include "ui/toolkit/french_toolkit.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QHash>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include "core/text.h"
#include "resources/strings.h"
#include "ui/toolkit/plain_text.h"

namespace orbisol {
namespace {

// French texts that the toolkit's own file lacks, the same in all windows.
class CTableTranslator : public QTranslator {
 public:
  explicit CTableTranslator(QObject* parent) : QTranslator(parent) {
    const auto sources = Split(StringText(kTextToolkitSource), u'|');
    const auto french = Split(StringText(kTextToolkitFrench), u'|');
    for (std::size_t i = 0; i < sources.size() && i < french.size(); ++i)
      m_texts.insert(ToQString(sources[i]).toUtf8(), ToQString(french[i]));
  }

  bool isEmpty() const override { return m_texts.isEmpty(); }
  QString translate(const char*, const char* source, const char*, int) const override {
    return m_texts.value(QByteArray::fromRawData(source, static_cast<qsizetype>(qstrlen(source))));
  }

 private:
  QHash<QByteArray, QString> m_texts;
};

}  // namespace

void SpeakFrench(QCoreApplication& application) {
  QLocale::setDefault(QLocale(QLocale::French, QLocale::France));
  // The translator installed last is asked first, so the table answers only for what the toolkit's file
  // lacks.
  QCoreApplication::installTranslator(new CTableTranslator(&application));
  auto* const toolkit = new QTranslator(&application);
  if (toolkit->load(QStringLiteral("qtbase_fr"), QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
    QCoreApplication::installTranslator(toolkit);
}

}  // namespace orbisol
