// The end of the session, or of the program by a signal: nobody can be asked any more, and nothing may be
// lost.
//
//   class CEditor : public QDialog, public SessionWindow {
//     bool KeepUnsaved() override;  // SaveUnasked(places, Display(), Rules(), edited)
//   };
//   KeepAllUnsaved();               // when the session ends
#pragma once

namespace orbisol {

// A window that holds what is not saved yet. It is found while it is open, by its class.
struct SessionWindow {
  // Saves what can be saved, and asks nothing. Returns false where something is safe nowhere. The session may
  // yet go on, and the window with it.
  virtual bool KeepUnsaved() = 0;

 protected:
  ~SessionWindow() = default;
};

// Has each open window of the program keep what it holds. Returns false where something is safe nowhere.
bool KeepAllUnsaved();

}  // namespace orbisol
