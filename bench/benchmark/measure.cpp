// Runs a command and prints what it took: wall, user and system seconds, and peak memory.

#ifdef __linux__
#include <sched.h>
#endif
#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <chrono>
#include <cstdio>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>

// NOLINTNEXTLINE(readability-redundant-declaration): not every system's headers declare it
extern char** environ;

namespace {

constexpr int kStatusFailed = 1;
constexpr int kStatusUsage = 2;

struct Job {
  int times = 1;
  const char* output = "/dev/null";
  char** command = nullptr;
};

/// Sums over all runs, except for the peak, which is that of the largest run.
struct Usage {
  double wall = 0;
  double user = 0;
  double system = 0;
  long peakKilobytes = 0;
};

/// 0 for what is no number.
int ParseTimes(std::string_view text) {
  int times = 0;
  const char* const end = text.data() + text.size();
  const std::from_chars_result result = std::from_chars(text.data(), end, times);
  return result.ec == std::errc() && result.ptr == end ? times : 0;
}

std::optional<Job> ParseArguments(char** arguments) {
  Job job;
  char** next = arguments + 1;
  while (next[0] != nullptr && next[1] != nullptr && next[0][0] == '-') {
    const std::string_view name = next[0];
    if (name == "-n") {
      job.times = ParseTimes(next[1]);
    } else if (name == "-o") {
      job.output = next[1];
    } else {
      return std::nullopt;
    }
    next += 2;
  }
  job.command = next;
  if (job.times < 1 || next[0] == nullptr) return std::nullopt;
  return job;
}

/// Every command that is compared runs on the core that this program happens to be on.
void StayOnOneCore() {
#ifdef __linux__
  const int core = sched_getcpu();
  if (core < 0) return;
  cpu_set_t cores;
  CPU_ZERO(&cores);
  CPU_SET(static_cast<std::size_t>(core), &cores);
  sched_setaffinity(0, sizeof cores, &cores);
#endif
}

double Seconds(const timeval& time) {
  return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
}

long Kilobytes(const rusage& usage) {
#ifdef __APPLE__
  return usage.ru_maxrss / 1024;
#else
  return usage.ru_maxrss;
#endif
}

void Complain(const Job& job, std::string_view complaint) {
  std::string line = std::string("measure: ") + job.command[0];
  line.append(complaint).append("\n");
  static_cast<void>(std::fputs(line.c_str(), stderr));
}

/// Starts the command with its standard output in the file; 0 or an error number.
int Start(const Job& job, pid_t& child) {
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, job.output, O_WRONLY | O_CREAT | O_TRUNC, 0666);
  const int error = posix_spawnp(&child, job.command[0], &actions, nullptr, job.command, environ);
  posix_spawn_file_actions_destroy(&actions);
  return error;
}

bool RunOnce(const Job& job, Usage& sum) {
  const auto start = std::chrono::steady_clock::now();
  pid_t child = 0;
  const int error = Start(job, child);
  if (error != 0) {
    Complain(job, ": " + std::generic_category().message(error));
    return false;
  }
  int status = 0;
  rusage usage{};
  while (wait4(child, &status, 0, &usage) < 0)
    if (errno != EINTR) return false;
  const std::chrono::duration<double> wall = std::chrono::steady_clock::now() - start;
  if (!WIFEXITED(status) || WEXITSTATUS(status) != 0) {
    Complain(job, " failed");
    return false;
  }
  sum.wall += wall.count();
  sum.user += Seconds(usage.ru_utime);
  sum.system += Seconds(usage.ru_stime);
  sum.peakKilobytes = std::max(sum.peakKilobytes, Kilobytes(usage));
  return true;
}

}  // namespace

int main(int count, char** arguments) {
  const std::optional<Job> job = count > 1 ? ParseArguments(arguments) : std::nullopt;
  if (!job) {
    static_cast<void>(std::fputs("Usage: measure [-n TIMES] [-o OUTPUT] COMMAND [ARGUMENT...]\n", stderr));
    return kStatusUsage;
  }
  StayOnOneCore();
  Usage sum;
  for (int run = 0; run < job->times; ++run)
    if (!RunOnce(*job, sum)) return kStatusFailed;
  std::printf("%.6f %.6f %.6f %ld\n", sum.wall, sum.user, sum.system, sum.peakKilobytes);
  return 0;
}
