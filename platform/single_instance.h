// One running program for each user and display: a second start calls the first and ends.
//
//   CSingleInstance instance({RuntimeFolder(), DisplayName(), ActivationToken()});
//   if (instance.IsSecond()) return 0;            // the first has been called
//   …                                             // when instance.Descriptor() can be read:
//   if (const auto token = instance.TakeCall()) … // somebody started the program again: show the window
//
// The first holds a lock, which ends with its process however that ends, and listens at a socket beside it.
// What a process that was killed left there is cleared away. Where no folder or socket can be had, or the
// first does not listen, the program runs on its own.
#pragma once

#include <functional>
#include <optional>
#include <string>

namespace orbisol {

// $XDG_RUNTIME_DIR, else a folder of the user's own below the temporary one, made here. Empty when there is
// neither, or when somebody else could reach into it.
std::string RuntimeFolder();
// The same of other variables, whose answer is empty for one that is not set, and of another user's number.
std::string FindRuntimeFolder(const std::function<std::string(const char* name)>& variable, unsigned user);

// Where the windows of this process appear, as part of a file's name; empty without a display.
std::string DisplayName();

// What the desktop gave to the process it started, so that the window which answers may come to the front.
std::string ActivationToken();

struct InstancePlace {
  std::string folder;   // empty: every start is the first
  std::string display;  // a second start on another display is a first one there
  std::string token;    // handed to the first
};

class CSingleInstance {
 public:
  explicit CSingleInstance(const InstancePlace& place);
  ~CSingleInstance();
  CSingleInstance(const CSingleInstance&) = delete;
  CSingleInstance& operator=(const CSingleInstance&) = delete;

  bool IsSecond() const { return m_isSecond; }

  // Can be read when calls are waiting; -1 when none will come.
  int Descriptor() const { return m_socket; }

  // The token of the last start since this was asked before, empty when it had none; nothing when there was
  // no start. Waits a tenth of a second at most, for callers that have not said all yet.
  std::optional<std::string> TakeCall();

 private:
  bool Listen(const std::string& path);

  int m_lock = -1;
  int m_socket = -1;
  std::string m_path;  // of the socket, while it is ours
  bool m_isSecond = false;
};

}  // namespace orbisol
