// Loaded before the C library: closing one file fails as on a network disk that has lost its server. The file
// is named by the environment variable FAILING_CLOSE.
#include <dlfcn.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

extern "C" int fclose(std::FILE* stream) {
  using Close = int (*)(std::FILE*);
  static const auto realClose = reinterpret_cast<Close>(dlsym(RTLD_NEXT, "fclose"));
  const std::string link = "/proc/self/fd/" + std::to_string(fileno(stream));
  char name[4096];
  const ssize_t length = readlink(link.c_str(), name, sizeof(name));
  const int status = realClose(stream);
  const char* failing = std::getenv("FAILING_CLOSE");
  if (failing == nullptr || length < 0) return status;
  if (!std::string_view(name, static_cast<std::size_t>(length)).ends_with(failing)) return status;
  errno = EIO;
  return EOF;
}
