// The signals by which a session, a terminal or another program asks this one to end: TERM, HUP and INT.
//
//   const CEndSignals signals;
//   …                           // when signals.Descriptor() can be read: close the window, which saves
//
// They are received while the object lives, of which there is one at a time. A second signal of a kind ends
// the process at once, so that one which hangs can still be stopped.
#pragma once

#include "platform/descriptor.h"

namespace orbisol {

class CEndSignals {
 public:
  CEndSignals();
  ~CEndSignals();
  CEndSignals(const CEndSignals&) = delete;
  CEndSignals& operator=(const CEndSignals&) = delete;

  // Returns a descriptor that can be read once a signal came; -1 if the system gave none, and signals end the
  // process.
  int Descriptor() const { return m_read.Get(); }

 private:
  CDescriptor m_read;
  CDescriptor m_write;
};

}  // namespace orbisol
