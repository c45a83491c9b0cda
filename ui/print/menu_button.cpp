#include "ui/print/menu_button.h"

#include <QStyleOptionToolButton>
#include <QStylePainter>

#include "resources/strings.h"
#include "ui/toolkit/plain_text.h"

namespace orbisol {

CMenuButton::CMenuButton(QMenu* menu, const QString& name, QWidget* parent)
    : QToolButton(parent), m_name(name) {
  setMenu(menu);
  setPopupMode(QToolButton::InstantPopup);
  setToolButtonStyle(Qt::ToolButtonTextOnly);
  setToolTip(name);
  setFocusPolicy(Qt::TabFocus);
}

void CMenuButton::Show(const QString& choice) {
  setText(choice);
  setAccessibleName(TableText(kTextSpokenLine, {Utf16View(m_name), Utf16View(choice)}));
}

// Returns the side of the square in which the arrow is drawn.
int CMenuButton::ArrowWidth() const { return fontMetrics().height() / 2; }

QSize CMenuButton::sizeHint() const { return QToolButton::sizeHint() + QSize(2 * ArrowWidth(), 0); }

// Draws the arrow behind the text in the middle of the line. Styles put it into a corner of the button.
void CMenuButton::paintEvent(QPaintEvent*) {
  QStylePainter painter(this);
  QStyleOptionToolButton option;
  initStyleOption(&option);
  option.features &= ~QStyleOptionToolButton::ToolButtonFeatures(QStyleOptionToolButton::HasMenu);
  option.text.clear();
  painter.drawComplexControl(QStyle::CC_ToolButton, option);

  const int arrow = ArrowWidth();
  const QRect inside = rect().adjusted(arrow, 0, -arrow, 0);
  painter.drawItemText(inside, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, option.palette,
                       isEnabled(), text(), QPalette::ButtonText);
  option.rect = QRect(inside.right() + 1 - arrow, inside.center().y() + 1 - arrow / 2, arrow, arrow);
  painter.drawPrimitive(QStyle::PE_IndicatorArrowDown, option);
}

}  // namespace orbisol
