// The hits of a search as rows of a list: day and text. Rows come at the end, year by year.
#pragma once

#include <QAbstractListModel>

#include <vector>

#include "content/content_search.h"

namespace orbisol {

class CHitsModel : public QAbstractListModel {
 public:
  using QAbstractListModel::QAbstractListModel;

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;

  void Clear();
  void Append(std::vector<SearchHit> hits);

  const std::vector<SearchHit>& Hits() const { return m_hits; }

  // Returns the row of the first hit that ends on or after a date; the last row where none does, -1 without
  // rows.
  int RowNear(PackedDate date) const;

 private:
  std::vector<SearchHit> m_hits;
};

}  // namespace orbisol
