// Small helpers that the groups of the converter pane share.
#pragma once

#include <QString>

class QLabel;
class QLayout;
class QLineEdit;
class QPushButton;
class QWidget;

namespace orbisol {

// Gives a group its layout, with the margins that all groups of the pane have.
void SetGroupLayout(QWidget* group, QLayout* layout);

// Keeps the room of `widget` free while it is hidden, so that nothing below it moves.
void KeepRoomWhenHidden(QWidget* widget);

// Returns the width, in pixels, of a field in which `text` is seen whole.
int FieldWidth(const QLineEdit& field, const QString& text);

// Names a field for screen readers with piece `piece` of kTextConverterNames. A combo box gets it as its
// description too, because readers replace the name of such a box with the item chosen in it.
void NameField(QWidget* field, int piece);

// Returns a new label for a date, semi-bold to be told from titles and notes, which the mouse and Tab
// reach.
QLabel* MakeDateLabel();

// Returns a new button with the text `textId` that Enter presses as well as Space.
QPushButton* MakeButton(int textId);

// Indices of the pieces of kTextConverterNames.
enum { kFieldDay, kFieldMonth, kFieldYear, kFieldKept, kFieldDifference };

}  // namespace orbisol
