// The end of the session, or of the program by a signal: nobody can be asked any more, and nothing may be
// lost.
//
//   class CEditor : public QDialog, public SessionWindow {
//     void KeepUnsaved() override;  // SaveUnasked(places, Display(), Rules(), edited)
//   };
//   KeepAllUnsaved();               // when the session ends
#pragma once

namespace orbisol {

// A window that holds what is not saved yet. It is found while it is open, by its class.
struct SessionWindow {
  // Saves what can be saved, and asks nothing. The session may yet go on, and the window with it.
  virtual void KeepUnsaved() = 0;

 protected:
  ~SessionWindow() = default;
};

// Has each open window of the program keep what it holds.
void KeepAllUnsaved();

}  // namespace orbisol
