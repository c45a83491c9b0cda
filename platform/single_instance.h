// One running program for each user: a second start calls the first and ends.
//
//   CSingleInstance instance(RuntimeFolder());
//   if (instance.IsSecond()) return 0;            // the first has been called
//   …                                             // when instance.Descriptor() can be read:
//   if (instance.TakeCalls()) …                   // somebody started the program again: show the window
//
// The first holds a lock, which ends with its process however that ends, and listens at a socket beside it.
// What a process that was killed left there is cleared away. Where no folder or socket can be had, or the
// first does not listen, the program runs on its own.
#pragma once

#include <string>

namespace orbisol {

// $XDG_RUNTIME_DIR, else a folder of the user's own below the temporary one, made here. Empty when there is
// neither, or when somebody else could reach into it.
std::string RuntimeFolder();

class CSingleInstance {
 public:
  explicit CSingleInstance(const std::string& folder);
  ~CSingleInstance();
  CSingleInstance(const CSingleInstance&) = delete;
  CSingleInstance& operator=(const CSingleInstance&) = delete;

  bool IsSecond() const { return m_isSecond; }

  // Can be read when calls are waiting; -1 when none will come.
  int Descriptor() const { return m_socket; }

  // Whether the program was started again since last asked. Never waits.
  bool TakeCalls();

 private:
  bool Listen(const std::string& path);

  int m_lock = -1;
  int m_socket = -1;
  std::string m_path;  // of the socket, while it is ours
  bool m_isSecond = false;
};

}  // namespace orbisol
