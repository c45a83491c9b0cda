#include "ui/toolkit/spoken_notice.h"

#include <QAccessible>
#include <QAccessibleObject>
#include <QWidget>

namespace orbisol {
namespace {

// A notification that is heard and not seen. It lives as long as its window.
class CNotice : public QObject {
 public:
  explicit CNotice(QWidget* window);

  QString text;
};

class CNoticeAccessible : public QAccessibleObject {
 public:
  explicit CNoticeAccessible(CNotice* notice) : QAccessibleObject(notice) {}

  QAccessibleInterface* parent() const override {
    return QAccessible::queryAccessibleInterface(object()->parent());
  }
  QAccessibleInterface* child(int) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface*) const override { return -1; }
  QAccessible::Role role() const override { return QAccessible::Notification; }
  QAccessible::State state() const override { return {}; }
  QString text(QAccessible::Text kind) const override {
    return kind == QAccessible::Name ? static_cast<const CNotice*>(object())->text : QString();
  }
};

CNotice::CNotice(QWidget* window) : QObject(window) {
  setObjectName(QStringLiteral("notice"));
  QAccessible::registerAccessibleInterface(new CNoticeAccessible(this));
}

}  // namespace

// Readers on this desktop hear of a notification when it appears. That the name of a widget has changed
// reaches them without the name.
void SayAloud(QWidget& window, const QString& text) {
  auto* notice =
      static_cast<CNotice*>(window.findChild<QObject*>(QStringLiteral("notice"), Qt::FindDirectChildrenOnly));
  if (notice == nullptr) notice = new CNotice(&window);
  notice->text = text;
  QAccessibleEvent event(notice, QAccessible::ObjectShow);
  QAccessible::updateAccessibility(&event);
}

}  // namespace orbisol
