// Counts the calls that a program makes on files, and lets one of them fail. The program is linked with
// fault_shim.cpp, whose calls take the place of the system's own.
//
//   FaultReport report;
//   FaultShimBegin(7, ENOSPC, report);  // the seventh call fails so
//   …
//   FaultShimEnd();
#pragma once

namespace orbisol {

// In the place of an error.
constexpr int kShortFault = -1;   // the call writes or reads less than it was asked to
constexpr int kKillFault = -2;    // it ends the process
constexpr int kMeddleFault = -3;  // just before it another program does something

struct FaultReport {
  int calls = 0;             // since the beginning
  int syncs = 0;             // of them those that bring files and folders to the disk
  const char* failed = "-";  // the name of the call that failed
};

// `call` counts from 1; 0 lets none fail. The report is written to up to the end. `meddle` is what the other
// program does at a kMeddleFault.
void FaultShimBegin(int call, int fault, FaultReport& report, void (*meddle)() = nullptr);
void FaultShimEnd();

}  // namespace orbisol
