// The print server of the machine. It takes the pages of a printer, or does not, and the toolkit tells
// nothing about that.
//
//   painter.end();  // sends the job
//   if (AskPrintServer(printer.printerName()) == ServerAnswer::kTaken) …
#pragma once

#include <QString>

#include <functional>

namespace orbisol {

enum class ServerAnswer {
  kTaken,
  kHeld,          // taken, but the printer is stopped: the pages wait
  kNotAccepting,  // the queue of the printer is closed
  kFailed,        // the server or the printer is gone, or refuses this user
};

// Returns the answer to the job that this thread has just sent to a printer.
using PrintServer = std::function<ServerAnswer(const QString& printer)>;

// Asks the server of this machine. One that prints without a server is taken to have printed the job.
ServerAnswer AskPrintServer(const QString& printer);

}  // namespace orbisol
