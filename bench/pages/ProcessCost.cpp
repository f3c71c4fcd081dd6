// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "bench/pages/ProcessCost.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace gdi::bench {

namespace {

constexpr int kNotStarted = 127;

using File = std::unique_ptr<std::FILE, int (*)(std::FILE*)>;

double secondsOf(const timeval& time) {
  return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
}

// In the child: never returns. What the program says of errors goes to `messages`.
[[noreturn]] void become(const char* program, char* const* words, const char* input, int messages) {
  const int source = open(input, O_RDONLY | O_CLOEXEC);
  const int nowhere = open("/dev/null", O_WRONLY | O_CLOEXEC);
  if (source >= 0 && nowhere >= 0 && dup2(source, STDIN_FILENO) >= 0 &&
      dup2(nowhere, STDOUT_FILENO) >= 0 && dup2(messages, STDERR_FILENO) >= 0) {
    (void)execv(program, words);
  }
  (void)dprintf(messages, "%s\n", std::strerror(errno));
  _exit(kNotStarted);
}

std::string lastLine(std::FILE* messages) {
  std::array<char, 1024> line{};
  std::string last;
  std::rewind(messages);
  while (std::fgets(line.data(), static_cast<int>(line.size()), messages) != nullptr) {
    last = line.data();
  }
  return last.substr(0, last.find('\n'));
}

// How it ended, and what it said last, if anything.
std::string endOf(int status, std::FILE* messages) {
  const std::string message = lastLine(messages);
  const std::string reason = message.empty() ? "" : ": " + message;
  if (WIFSIGNALED(status)) {
    return "was ended by signal " + std::to_string(WTERMSIG(status)) + reason;
  }
  return (WEXITSTATUS(status) == kNotStarted
              ? "cannot be started"
              : "ended with status " + std::to_string(WEXITSTATUS(status))) +
         reason;
}

}  // namespace

std::optional<ProcessCost> costOfProcess(const std::filesystem::path& program,
                                         std::vector<std::string> words,
                                         const std::filesystem::path& input) {
  const File messages(std::tmpfile(), &std::fclose);
  std::vector<char*> arguments;
  arguments.reserve(words.size() + 1);
  for (std::string& word : words) {
    arguments.push_back(word.data());
  }
  arguments.push_back(nullptr);
  const pid_t child = messages == nullptr ? -1 : fork();
  if (child == 0) {
    become(program.c_str(), arguments.data(), input.c_str(), fileno(messages.get()));
  }
  int status = 0;
  rusage usage{};
  if (child < 0 || wait4(child, &status, 0, &usage) != child) {
    (void)std::fprintf(stderr, "page_costs: no process for %s: %s\n", program.c_str(),
                       std::strerror(errno));
    return std::nullopt;
  }
  if (status != 0) {
    (void)std::fprintf(stderr, "page_costs: reading %s, %s %s\n", input.c_str(), program.c_str(),
                       endOf(status, messages.get()).c_str());
    return std::nullopt;
  }
  return ProcessCost{secondsOf(usage.ru_utime) + secondsOf(usage.ru_stime),
                     static_cast<double>(usage.ru_maxrss) / 1024};
}

}  // namespace gdi::bench
