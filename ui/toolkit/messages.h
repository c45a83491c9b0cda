// What the program says aloud: message boxes and the beep. Tests put their own in their place.
//
//   Messages().ShowError(this, TableText(135));
//   if (Messages().Choose(this, question, {replace, keepBoth}) == 0) …
#pragma once

#include <QString>
#include <QStringList>

class QWidget;

namespace orbisol {

struct MessageDoor {
  virtual ~MessageDoor() = default;

  // Both return when the user has closed the box. Texts are plain text. `parent` may be null.
  virtual void ShowError(QWidget* parent, const QString& text) = 0;
  // The button pressed, from 0, the first of which is the default; -1 when the box was closed by other means.
  virtual int Choose(QWidget* parent, const QString& text, const QStringList& buttons) = 0;

  // For an action that is refused.
  virtual void Beep() = 0;
};

MessageDoor& Messages();

// Holds another door in place, and puts back what was.
class ScopedMessages {
 public:
  explicit ScopedMessages(MessageDoor& door);
  ~ScopedMessages();
  ScopedMessages(const ScopedMessages&) = delete;
  ScopedMessages& operator=(const ScopedMessages&) = delete;

 private:
  MessageDoor* m_saved;
};

}  // namespace orbisol
