// Sentences for a screen reader, about what happens away from the focus: a page that is turned, a job that
// has ended.
//
//   SayAloud(*this, "3 pages envoyées à Laser");
//
// Those who see the screen must be told otherwise.
#pragma once

class QString;
class QWidget;

namespace orbisol {

// Has a reader say `text`, as a notification of `window`. Each one replaces the one before.
void SayAloud(QWidget& window, const QString& text);

}  // namespace orbisol
