// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "filter/log/debug_log.h"

#include <cerrno>
#include <ctime>
#include <string>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/time.h>
#include <unistd.h>

#include "filter/log/line_prefix.h"

namespace gdi {

std::FILE* gDebugFile = nullptr;
const char* gDebugMarkerPath = "/tmp/gdidebug";
const char* gDebugLogPath = "/tmp/CUPSDebug.log";

namespace {

// Keeps errno over a logging call: callers log first and ask what went wrong afterwards.
class ErrnoKeeper {
 public:
  ErrnoKeeper() : saved_(errno) {}
  ~ErrnoKeeper() { errno = saved_; }
  ErrnoKeeper(const ErrnoKeeper&) = delete;
  ErrnoKeeper& operator=(const ErrnoKeeper&) = delete;

 private:
  int saved_;
};

// Where systems protect shared folders, O_CREAT is refused for a file that somebody else owns, so
// it is only asked for when there is none.
int openOrCreateLog() {
  constexpr int kAppend = O_WRONLY | O_APPEND | O_NOFOLLOW | O_CLOEXEC | O_NONBLOCK;
  int descriptor = open(gDebugLogPath, kAppend);
  if (descriptor < 0 && errno == ENOENT) {
    descriptor = open(gDebugLogPath, kAppend | O_CREAT | O_EXCL, 0666);
    if (descriptor < 0 && errno == EEXIST) {  // another filter was faster
      descriptor = open(gDebugLogPath, kAppend);
    }
  }
  return descriptor;
}

// Opens the log through no link, symbolic or hard: /tmp is everybody's, and the filter may run as
// root.
std::FILE* openLogFile() {
  const int descriptor = openOrCreateLog();
  if (descriptor < 0) {
    return nullptr;
  }
  struct stat status {};
  if (fstat(descriptor, &status) != 0 || !S_ISREG(status.st_mode) || status.st_nlink != 1) {
    (void)close(descriptor);
    errno = EINVAL;
    return nullptr;
  }
  constexpr mode_t kForEverybody = 0666;
  (void)fchmod(descriptor, kForEverybody);  // somebody else's file keeps the mode it has
  std::FILE* file = fdopen(descriptor, "a");
  if (file == nullptr) {
    (void)close(descriptor);
  }
  return file;
}

// Nothing when the time cannot be told: the line then begins with its message.
std::string prefixNow() {
  const pid_t process = getpid();
  timeval now{};
  if (gettimeofday(&now, nullptr) != 0) {
    return "";
  }
  const std::time_t seconds = std::time(nullptr);
  std::tm local{};
  if (localtime_r(&seconds, &local) == nullptr) {
    return "";
  }
  return logLinePrefix(local, static_cast<int>(now.tv_usec), static_cast<int>(process));
}

// Write errors are ignored: a log that cannot be written must not stop a job.
void writeLine(const char* mark, const char* format, std::va_list arguments) {
  (void)std::fputs(prefixNow().c_str(), gDebugFile);
  (void)std::fputs(mark, gDebugFile);
  // NOLINTNEXTLINE(clang-analyzer-valist.Uninitialized): both callers start it
  (void)std::vfprintf(gDebugFile, format, arguments);
  (void)std::fputc('\n', gDebugFile);
  (void)std::fflush(gDebugFile);
}

}  // namespace

void DebugStart() {
  struct stat marker {};
  if (gDebugFile != nullptr || stat(gDebugMarkerPath, &marker) != 0) {
    return;
  }
  gDebugFile = openLogFile();
  if (gDebugFile == nullptr) {
    std::perror("DEBUG: Unable to open debug log for writing, switching to stderr");
    gDebugFile = stderr;
    return;
  }
  (void)std::setvbuf(gDebugFile, nullptr, _IONBF, 0);  // a buffered log is still flushed each line
}

void DebugEnd() {
  if (gDebugFile != nullptr && gDebugFile != stderr) {
    (void)std::fclose(gDebugFile);
    gDebugFile = nullptr;
  }
}

void CPSDebugLog(const char* format, ...) {
  const ErrnoKeeper errnoKeeper;
  DebugStart();
  if (gDebugFile != nullptr) {
    std::va_list arguments;
    va_start(arguments, format);
    writeLine("", format, arguments);
    va_end(arguments);
  }
}

void CPSDebugAssert_(const char* format, ...) {
  const ErrnoKeeper errnoKeeper;
  DebugStart();
  if (gDebugFile != nullptr) {
    std::va_list arguments;
    va_start(arguments, format);
    writeLine("ASSERT: ", format, arguments);
    va_end(arguments);
  }
}

void CPSDebugLogHexDump(const std::uint8_t* bytes, std::uint32_t count) {
  const ErrnoKeeper errnoKeeper;
  DebugStart();
  if (gDebugFile == nullptr) {
    return;
  }
  (void)std::fputs("    ", gDebugFile);
  for (std::uint32_t i = 0; i < count; ++i) {
    if (i > 0 && i % 8 == 0) {
      (void)std::fputs("\n    ", gDebugFile);
    }
    (void)std::fprintf(gDebugFile, "0x%2.2x ", bytes[i]);
  }
  (void)std::fputc('\n', gDebugFile);
  (void)std::fflush(gDebugFile);
}

}  // namespace gdi
