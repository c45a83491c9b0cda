// One running program for each user and display: a second start calls the first and ends.
//
//   CSingleInstance instance({RuntimeFolder(), DisplayName(), ActivationToken()});
//   if (instance.Role() == InstanceRole::kRaised) return 0;  // the first shows its window
//   …                                              // when instance.Descriptor() can be read:
//   if (const auto token = instance.TakeCall()) …  // somebody started the program again: show the window
//
// The first holds a lock, which ends with its process however that ends, and listens at a socket beside it.
// It answers each call with one byte: a call without an answer is made again, or the caller takes the place
// of a first that is gone. Where no folder, lock or socket can be had, the program runs on its own.
#pragma once

#include <chrono>
#include <optional>
#include <string>

#include "platform/descriptor.h"

namespace orbisol {

struct InstancePlace {
  std::string folder;                        // empty: every start is the first
  std::string display;                       // a second start on another display is a first one there
  std::string token;                         // token of the desktop, handed to the first; empty for none
  std::chrono::milliseconds patience{2000};  // time to wait for a first that does not answer
};

enum class InstanceRole {
  kFirst,   // no other program runs here, or this one can know of none
  kRaised,  // the first has answered
  kSilent,  // another program holds the place, but has not answered within the patience
};

class CSingleInstance {
 public:
  explicit CSingleInstance(const InstancePlace& place);
  ~CSingleInstance();
  CSingleInstance(const CSingleInstance&) = delete;
  CSingleInstance& operator=(const CSingleInstance&) = delete;

  InstanceRole Role() const { return m_role; }

  // Returns what can be read when calls are waiting; -1 when none will come.
  int Descriptor() const { return m_socket.Get(); }

  // Answers the calls that are waiting, and returns the token of the last: empty when it had none. Returns
  // nothing when no caller still waits for the answer. Takes a tenth of a second at most.
  std::optional<std::string> TakeCall();

 private:
  bool Listen(const std::string& path);

  CDescriptor m_lock;
  CDescriptor m_socket;
  std::string m_path;  // path of the socket, while it is ours
  InstanceRole m_role = InstanceRole::kFirst;
};

}  // namespace orbisol
