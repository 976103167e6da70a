// The program's entry.
#include <csignal>

#include "driver/program.h"

int main(int argc, char** argv) {
  // A terminal that goes away or a report that meets a size limit is a failed write, not the end of the
  // process.
  std::signal(SIGPIPE, SIG_IGN);
  std::signal(SIGXFSZ, SIG_IGN);
  return quillon::RunProgram(argc, argv);
}
