// A field for the name of a calendar, with the line below it that says why a name is refused.
//
//   CNameCheck check(*form.name, *form.fault);
//   check.SetTaken(names);           // of the other calendars
//   if (!check.Accepts()) return;    // the field says why, and has the focus
#pragma once

#include <QObject>

#include <string>
#include <vector>

class QLineEdit;

namespace orbisol {

class CFieldNote;

class CNameCheck : public QObject {
 public:
  // Lives as long as the field.
  CNameCheck(QLineEdit& field, CFieldNote& note);

  void SetTaken(std::vector<std::u16string> names) { m_taken = std::move(names); }

  std::u16string Name() const;

  // Returns whether the name can be taken (FaultOfNewName). Where it cannot, says why at the field.
  bool Accepts();

  // Takes back what was said.
  void Clear();

 private:
  QString Fault() const;

  QLineEdit& m_field;
  CFieldNote& m_note;
  std::vector<std::u16string> m_taken;
};

}  // namespace orbisol
