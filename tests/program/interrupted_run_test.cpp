// Runs that a signal ends: what they leave of the report is the start of the whole one.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <chrono>
#include <condition_variable>
#include <csignal>
#include <fstream>
#include <mutex>
#include <string>
#include <thread>

#include "program/program_fixture.h"

namespace quillon {
namespace {

/// What every example gives, over and over: far more than the report's buffer.
std::string LongTrace() {
  std::string examples;
  for (const char* const name : {"queue_session", "publish_subscribe", "admin_command", "client_connect"})
    examples += ReadWholeFile(std::string(QUILLON_SOURCE_DIR "/examples/") + name + ".txt");
  return Repeated(examples, 40);
}

class InterruptedRun : public Program, public testing::WithParamInterface<int> {
 protected:
  /// Starts the program on a pipe that gives the first part of the trace and then nothing more, and sends the
  /// signal when the report has begun.
  Ending Interrupt(const std::string& part, int signal) const {
    if (mkfifo(Path("pipe").c_str(), 0600) != 0) throw std::runtime_error("mkfifo");
    std::mutex mutex;
    std::condition_variable changed;
    bool ended = false;
    std::thread writer([&] {
      std::ofstream pipe(Path("pipe"));
      pipe << part << std::flush;
      // The pipe stays open: the program waits for more.
      std::unique_lock lock(mutex);
      changed.wait(lock, [&] { return ended; });
    });
    Start start;
    start.arguments = {"pipe", "-o", kReport};
    start.output = "/dev/null";
    const pid_t child = Begin(start);
    for (int i = 0; i < 6000 && (!Exists(kReport) || fs::file_size(Path(kReport)) == 0); ++i)
      std::this_thread::sleep_for(std::chrono::milliseconds(10));
    kill(child, signal);
    Ending ending = Wait(start, child);
    {
      const std::lock_guard lock(mutex);
      ended = true;
    }
    changed.notify_all();
    writer.join();
    return ending;
  }
};

TEST_P(InterruptedRun, LeavesTheStartOfTheWholeReport) {
  const std::string trace = LongTrace();
  Write("pipe", trace);
  ASSERT_EQ(Run({"pipe", "-o", "whole"}).status, 0);
  fs::remove(Path("pipe"));
  const std::string whole = Read("whole");
  for (const std::size_t size : {trace.size() / 10, trace.size() / 3, trace.size()}) {
    const Ending ending = Interrupt(trace.substr(0, size), GetParam());
    EXPECT_EQ(ending.status, 128 + GetParam());
    const std::string report = Read(kReport);
    EXPECT_GT(report.size(), 0U);
    EXPECT_LT(report.size(), whole.size());
    EXPECT_TRUE(report == whole.substr(0, report.size())) << "after " << size << " bytes of the trace";
    fs::remove(Path("pipe"));
    fs::remove(Path(kReport));
  }
}

INSTANTIATE_TEST_SUITE_P(Signals, InterruptedRun, testing::Values(SIGINT, SIGTERM, SIGHUP, SIGKILL, SIGQUIT),
                         [](const auto& signal) { return "Signal" + std::to_string(signal.param); });

}  // namespace
}  // namespace quillon
