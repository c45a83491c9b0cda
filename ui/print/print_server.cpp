#include "ui/print/print_server.h"

#include <QPrinter>
#include <QPrinterInfo>

#include <dlfcn.h>

namespace orbisol {
namespace {

// States of the Internet Printing Protocol, RFC 8011, appendix B. Those below the first are successes.
constexpr int kFirstFault = 0x0100;
constexpr int kNotAcceptingJobs = 0x0506;

// Returns the state in which the library of the print server left the last request of this thread. It is
// there only where the toolkit has loaded it, and nothing is wrong where it is not.
int StateOfLastRequest() {
  void* const library = dlopen("libcups.so.2", RTLD_LAZY | RTLD_NOLOAD);
  if (library == nullptr) return 0;
  void* const symbol = dlsym(library, "cupsLastError");
  const int state = symbol == nullptr ? 0 : reinterpret_cast<int (*)()>(symbol)();
  dlclose(library);
  return state;
}

}  // namespace

ServerAnswer AskPrintServer(const QString& printer) {
  const int state = StateOfLastRequest();  // the question below is a request too
  if (state == kNotAcceptingJobs) return ServerAnswer::kNotAccepting;
  if (state >= kFirstFault) return ServerAnswer::kFailed;
  const QPrinterInfo info = QPrinterInfo::printerInfo(printer);
  if (info.isNull()) return ServerAnswer::kFailed;
  return info.state() == QPrinter::Error ? ServerAnswer::kHeld : ServerAnswer::kTaken;
}

}  // namespace orbisol
