// The program's entry.
#include <fcntl.h>
#include <unistd.h>

#include <csignal>

#include "driver/program.h"

namespace {

// A standard stream that the caller has closed would give its number to the next file that is opened, and
// messages would be printed into the report. Where nothing can be opened, the trace cannot be opened either.
void OccupyStandardStreams() {
  for (int stream = STDIN_FILENO; stream <= STDERR_FILENO; ++stream) {
    // cppcheck-suppress leakReturnValNotUsed ; the number stays taken until the process ends
    if (fcntl(stream, F_GETFD) < 0) static_cast<void>(open("/dev/null", O_RDWR));
  }
}

}  // namespace

int main(int argc, char** argv) {
  OccupyStandardStreams();
  // A terminal that goes away or a report that meets a size limit is a failed write, not the end of the
  // process. Both are signals that may be ignored.
  static_cast<void>(std::signal(SIGPIPE, SIG_IGN));
  static_cast<void>(std::signal(SIGXFSZ, SIG_IGN));
  return quillon::RunProgram(argc, argv);
}
