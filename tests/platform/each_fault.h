// Steps that change files, taken again and again, each time with a fault at another of their system calls.
//
//   ForEachFault({EIO, kKillFault}, 2, step, prepare, check);
#pragma once

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <functional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "tests/support/fault_shim.h"

namespace orbisol {

using Step = std::function<bool()>;  // a step on real files, which returns true to report success

struct Outcome : FaultReport {
  bool isDone = false;       // whether the step reported success
  bool isKilled = false;     // whether it was killed and reported nothing
  bool isWriteLost = false;  // whether a write was lost, so that it must not report success

  // Returns whether a temporary file or a note may be left.
  bool MayLeave() const { return isKilled || std::string_view(failed) == "unlink"; }
};

// Takes the step with a fault at one call, in a process of its own if the fault kills it.
inline Outcome Taken(const Step& step, int call = 0, int fault = 0, void (*meddle)() = nullptr) {
  Outcome outcome;
  outcome.isKilled = fault == kKillFault;
  const pid_t process = outcome.isKilled ? fork() : 0;
  if (process == 0) {
    FaultShimBegin(call, fault, outcome, meddle);
    outcome.isDone = step();
    FaultShimEnd();
    if (outcome.isKilled) _exit(0);  // the call was not reached
  } else {
    int status = 0;
    wait(&status);
    EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL);
  }
  const std::set<std::string_view> writing = {"write", "fsync", "rename", "renameat2", "fchmod", "fchown"};
  outcome.isWriteLost = fault > 0 && fault != EINTR && fault != EINVAL && writing.count(outcome.failed) > 0;
  return outcome;
}

// Runs three processes at once, each with a letter of its own, which must all report success.
inline void RunThreeAtOnce(const std::function<bool(char letter)>& act) {
  for (const char letter : {'A', 'B', 'C'})
    if (fork() == 0) _exit(Taken([&] { return act(letter); }).isDone ? 0 : 1);
  for (int status = 0; wait(&status) > 0;) EXPECT_EQ(status, 0);
}

inline const std::string kOld(5000, 'o');
inline const std::string kNew(9000, 'n');

// Repeats a step, each time with the next of its calls failing, until it has no further call. `prepare` makes
// the state before, `check` checks the state after. A step without a fault makes at least `syncs` syncs.
inline void ForEachFault(const std::vector<int>& faults, int syncs, const Step& step,
                         const std::function<void()>& prepare,
                         const std::function<void(const Outcome&)>& check) {
  prepare();
  const Outcome sound = Taken(step);
  ASSERT_TRUE(sound.isDone);
  ASSERT_GT(sound.calls, 5) << "the shim does not see the calls";
  EXPECT_GE(sound.syncs, syncs) << "a loss of power could undo it";
  check(sound);
  for (const int fault : faults) {
    for (int call = 1; call <= sound.calls && !testing::Test::HasFailure(); ++call) {
      prepare();
      const Outcome outcome = Taken(step, call, fault);
      SCOPED_TRACE("fault " + std::to_string(fault) + " at call " + std::to_string(call) + ", " +
                   outcome.failed);
      const std::string_view name = outcome.failed;
      const bool hasOtherWay = (fault == EXDEV && name == "rename") ||
                               (fault == EINVAL && name == "renameat2") || (fault > 0 && name == "flock");
      EXPECT_TRUE(outcome.isDone || (fault != EINTR && fault != kShortFault && !hasOtherWay));
      check(outcome);
    }
  }
}

}  // namespace orbisol
