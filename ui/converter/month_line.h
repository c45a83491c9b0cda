// One line of the list of a month: the day, right-aligned, and its text in the lettering of its kind.
#pragma once

#include <QStyledItemDelegate>

#include "content/month_highlights.h"

namespace orbisol {

// Returns how the line reads: "1 Fête du Travail" without the number, "Vacances d'hiver (8–23)" for several
// days.
QString LineText(const Highlight& highlight);

// Returns how a screen reader says it: "Vendredi 1 mai 2026 : Fête du Travail, jour férié".
QString SpokenLine(const Highlight& highlight);

class CMonthLine : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  // What the model holds beside the text of a line.
  enum Role {
    kDayRole = Qt::UserRole,  // number of the day
    kKindRole,                // HighlightKind
    kMarkedRole,              // whether the day is the selected date
  };

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

}  // namespace orbisol
