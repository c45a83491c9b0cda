// Message boxes and the beep, behind an interface that tests implement with a test double.
//
//   Messages().ShowError(this, TableText(135));
//   if (Messages().Choose(this, question, {replace, keepBoth}) == 0) …
#pragma once

#include <QString>
#include <QStringList>

class QWidget;

namespace orbisol {

struct UserMessages {
  virtual ~UserMessages() = default;

  // Shows an error and returns when the user has closed the box. `text` is plain text. `parent` may be null.
  virtual void ShowError(QWidget* parent, const QString& text) = 0;

  // Asks a question likewise. Returns the index in `buttons` of the button pressed, the first being the
  // default; -1 when the box was closed by other means.
  virtual int Choose(QWidget* parent, const QString& text, const QStringList& buttons) = 0;

  // Beeps, for an action that is refused.
  virtual void Beep() = 0;
};

// Returns the desktop's messages, or the test double in force.
UserMessages& Messages();

// Puts a test double in force for one scope, and the messages before it at its end.
class ScopedMessages {
 public:
  explicit ScopedMessages(UserMessages& messages);
  ~ScopedMessages();
  ScopedMessages(const ScopedMessages&) = delete;
  ScopedMessages& operator=(const ScopedMessages&) = delete;

 private:
  UserMessages* m_saved;
};

}  // namespace orbisol
