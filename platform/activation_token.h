// The token by which a desktop lets one program bring another one's window to the front. The desktop gives it
// to the process that it starts; a second start hands it to the first, whose window then answers.
//
//   const std::string token = ActivationToken();  // in the second process
//   …
//   const CScopedActivationToken scope(token);    // in the first
//   window->activateWindow();
#pragma once

#include <string>

namespace orbisol {

// Returns the token that the desktop gave to this process; empty when it gave none.
std::string ActivationToken();

// Leaves a token where the toolkit looks for it when a window asks to be activated, and takes it away at the
// end of the scope, since it is good for one time. An empty token changes nothing until then.
class CScopedActivationToken {
 public:
  explicit CScopedActivationToken(const std::string& token);
  ~CScopedActivationToken();
  CScopedActivationToken(const CScopedActivationToken&) = delete;
  CScopedActivationToken& operator=(const CScopedActivationToken&) = delete;
};

}  // namespace orbisol
