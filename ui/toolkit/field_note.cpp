#include "ui/toolkit/field_note.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QStyle>

namespace orbisol {

CFieldNote::CFieldNote(QWidget* parent) : QWidget(parent), m_sign(new QLabel), m_text(new QLabel) {
  auto* const row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  row->addWidget(m_sign, 0, Qt::AlignTop);
  row->addWidget(m_text, 1);
  const int side = style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, this);
  m_sign->setPixmap(style()->standardIcon(QStyle::SP_MessageBoxWarning).pixmap(side));
  m_text->setTextFormat(Qt::PlainText);
  m_text->setWordWrap(true);
  m_text->setAlignment(Qt::AlignTop | Qt::AlignLeading);
  setVisible(false);
}

void CFieldNote::Say(const QString& reason) {
  m_text->setText(reason);
  setVisible(!reason.isEmpty());
  if (m_field != nullptr) m_field->setAccessibleDescription(reason);
}

QString CFieldNote::Text() const { return m_text->text(); }

}  // namespace orbisol
