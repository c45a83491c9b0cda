#include "ui/toolkit/spoken_value.h"

#include <QComboBox>

#include "resources/strings.h"
#include "ui/toolkit/plain_text.h"

namespace orbisol {
namespace {

void Describe(QComboBox& box) {
  const QString name = box.accessibleName();
  const QString value = box.currentText();
  box.setAccessibleDescription(
      name.isEmpty() ? value : TableText(kTextSpokenLine, {Utf16View(name), Utf16View(value)}));
}

}  // namespace

void SpeakValue(QComboBox& box) {
  Describe(box);
  QObject::connect(&box, &QComboBox::currentTextChanged, &box, [&box] { Describe(box); });
}

}  // namespace orbisol
