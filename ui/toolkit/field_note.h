// A line below a field that says why what stands in it is refused: a warning sign and a sentence, read aloud
// with the field. It takes no room while it says nothing.
//
//   note->SetField(name);
//   note->Say(TablePiece(…));   // empty: nothing is wrong
#pragma once

#include <QWidget>

class QLabel;

namespace orbisol {

class CFieldNote : public QWidget {
  Q_OBJECT

 public:
  explicit CFieldNote(QWidget* parent = nullptr);

  // Names the field whose description for screen readers the sentence becomes.
  void SetField(QWidget& field) { m_field = &field; }

  void Say(const QString& reason);
  QString Text() const;

 private:
  QLabel* m_sign;
  QLabel* m_text;
  QWidget* m_field = nullptr;
};

}  // namespace orbisol
