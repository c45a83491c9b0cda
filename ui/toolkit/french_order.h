// The order of names in a list: that of a French dictionary, upper case and accents aside, numbers by value.
//
//   std::sort(names.begin(), names.end(), CFrenchOrder());  // Calendar 2, Calendar 10, États-Unis, famille
#pragma once

#include <QCollator>
#include <QString>

namespace orbisol {

class CFrenchOrder {
 public:
  CFrenchOrder() : m_collator(QLocale(QLocale::French, QLocale::France)) {
    m_collator.setCaseSensitivity(Qt::CaseInsensitive);
    m_collator.setNumericMode(true);
  }

  bool operator()(const QString& a, const QString& b) const {
    const int order = m_collator.compare(a, b);
    return order != 0 ? order < 0 : a < b;
  }

 private:
  QCollator m_collator;
};

}  // namespace orbisol
