#include "ui/converter/group_parts.h"

#include <QComboBox>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QStyle>
#include <QStyleOptionFrame>

#include "resources/strings.h"
#include "ui/toolkit/plain_text.h"
#include "ui/toolkit/selectable_label.h"
#include "ui/toolkit/spoken_value.h"

namespace orbisol {

void SetGroupLayout(QWidget* group, QLayout* layout) {
  layout->setContentsMargins(8, 3, 8, 5);
  layout->setSpacing(3);
  group->setLayout(layout);
}

void KeepRoomWhenHidden(QWidget* widget) {
  QSizePolicy policy = widget->sizePolicy();
  policy.setRetainSizeWhenHidden(true);
  widget->setSizePolicy(policy);
}

int FieldWidth(const QLineEdit& field, const QString& text) {
  QStyleOptionFrame option;
  option.initFrom(&field);
  option.lineWidth = field.style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, &field);
  constexpr int kTextMargin = 2;  // pixels that the toolkit adds at each side
  constexpr int kCursor = 1;
  const QSize inside(field.fontMetrics().horizontalAdvance(text) + 2 * kTextMargin + kCursor,
                     field.fontMetrics().height());
  return field.style()->sizeFromContents(QStyle::CT_LineEdit, &option, inside, &field).width();
}

void NameField(QWidget* field, int piece) {
  const QString name = TablePiece(kTextConverterNames, piece);
  field->setAccessibleName(name);
  if (auto* const box = qobject_cast<QComboBox*>(field)) SpeakValue(*box);
}

QLabel* MakeDateLabel() {
  auto* const label = new CSelectableLabel;
  QFont font;  // sets the weight alone, so that all else follows the pane
  font.setWeight(QFont::DemiBold);
  label->setFont(font);
  return label;
}

QPushButton* MakeButton(int textId) {
  auto* const button = new QPushButton(TableText(textId));
  button->setAutoDefault(true);
  return button;
}

}  // namespace orbisol
