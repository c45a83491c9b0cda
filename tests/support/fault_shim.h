// Counts the calls that a program makes on files, and lets one of them fail. The program is linked with
// fault_shim.cpp, whose calls replace those of the system.
//
//   FaultReport report;
//   FaultShimBegin(7, ENOSPC, report);  // the seventh call fails so
//   …
//   FaultShimEnd();
#pragma once

namespace orbisol {

// Faults that are given instead of an error.
constexpr int kShortFault = -1;   // the call writes or reads less than it was asked to
constexpr int kKillFault = -2;    // the call ends the process
constexpr int kMeddleFault = -3;  // another program does something just before the call

struct FaultReport {
  int calls = 0;             // number of calls since FaultShimBegin
  int syncs = 0;             // number of those that sync a file or folder
  const char* failed = "-";  // name of the call that failed
};

// Lets call number `call` fail, counted from 1; 0 lets none fail. The report is updated until FaultShimEnd. A
// kMeddleFault calls `meddle`, which acts as the other program.
void FaultShimBegin(int call, int fault, FaultReport& report, void (*meddle)() = nullptr);
void FaultShimEnd();

}  // namespace orbisol
