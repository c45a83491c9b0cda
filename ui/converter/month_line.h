// One line of the list of a month: the day, right-aligned, and its text in the lettering of its kind.
#pragma once

#include <QStyledItemDelegate>

#include "content/month_highlights.h"

namespace orbisol {

// Returns the text of a line: "1 Fête du Travail" without the number, "Vacances d'hiver (8–23)" for several
// days.
QString LineText(const Highlight& highlight);

// Returns the line for screen readers: "Vendredi 1 mai 2026 : Fête du Travail, jour férié".
QString SpokenLine(const Highlight& highlight);

class CMonthLine : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  // Data of a line beside its text.
  enum Role {
    kDayRole = Qt::UserRole,  // number of the day
    kKindRole,                // HighlightKind
    kMarkedRole,              // whether the day is the selected date
  };

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

}  // namespace orbisol
