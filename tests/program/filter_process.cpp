// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/program/filter_process.h"

#include <array>
#include <chrono>
#include <csignal>
#include <fstream>
#include <iterator>
#include <sstream>
#include <thread>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include "reader/JobWalk.h"

namespace gdi::programtest {

namespace fs = std::filesystem;

namespace {

constexpr auto kPatience = std::chrono::seconds(20);
constexpr auto kLongestRun = std::chrono::seconds(60);
constexpr auto kPollInterval = std::chrono::milliseconds(2);

void writeFile(const fs::path& path, std::string_view text) {
  std::ofstream(path, std::ios::binary)
      .write(text.data(), static_cast<std::streamsize>(text.size()));
}

std::vector<char*> pointersTo(std::vector<std::string>& texts) {
  std::vector<char*> pointers;
  for (std::string& text : texts) {
    pointers.push_back(text.data());
  }
  pointers.push_back(nullptr);
  return pointers;
}

// What a job that did not end well may lack: its end, or bands of its last page.
bool isMissingEnd(reader::Rule rule) {
  return rule == reader::Rule::kTruncated || rule == reader::Rule::kEndMark ||
         rule == reader::Rule::kPageRows || rule == reader::Rule::kPageEnd;
}

// Holds what the program has sent against the whole format.
void expectKeptFormat(const FilterResult& result) {
  const bool endedWell = result.exitStatus == 0;
  std::string told;
  const auto tell = [&](const reader::Finding& finding) {
    if (!finding.remark() && (endedWell || !isMissingEnd(finding.rule))) {
      told.append(reader::lineOf(finding)).append("\n");
    }
  };
  std::istringstream stream(std::string(result.output.begin(), result.output.end()));
  reader::JobWalk walk(stream, tell);
  while (walk.next()) {
  }
  EXPECT_EQ(told, "") << "the program's own stream violates the format";
}

}  // namespace

std::string ppdText(const std::string& extra) {
  return "*PPD-Adobe: \"4.3\"\n*FormatVersion: \"4.3\"\n*FileVersion: \"1.0\"\n"
         "*LanguageVersion: English\n*LanguageEncoding: ISOLatin1\n*PCFileName: \"TEST.PPD\"\n"
         "*Product: \"(test)\"\n*PSVersion: \"(3010.000) 0\"\n*Manufacturer: \"test\"\n"
         "*ModelName: \"test\"\n*ShortNickName: \"test\"\n*NickName: \"Test printer\"\n" +
         extra;
}

std::vector<std::uint8_t> bytesOf(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

std::string textOf(const fs::path& path) {
  const std::vector<std::uint8_t> bytes = bytesOf(path);
  return {bytes.begin(), bytes.end()};
}

FilterProcess::FilterProcess() {
  (void)std::signal(SIGPIPE, SIG_IGN);  // a program that ends early reads no more input
  std::string pattern = testing::TempDir() + "filter-XXXXXX";
  folder_ = mkdtemp(pattern.data());
}

FilterProcess::~FilterProcess() {
  if (process_ > 0) {
    (void)kill(process_, SIGKILL);
    (void)waitpid(process_, nullptr, 0);
  }
  closeInput();
  fs::remove_all(folder_);
}

// The program runs from a folder of its own, so that its bundle can be this test's.
void FilterProcess::prepareFolder() {
  fs::create_directories(folder_ / "etc/ppd");
  fs::create_directories(folder_ / "tmp");
  fs::create_directories(folder_ / "app");
  if (ppd) {
    writeFile(folder_ / "etc/ppd" / (std::string(kQueue) + ".ppd"), *ppd);
  }
  if (debugLog) {
    writeFile(folder_ / "gdidebug", "");
  }
  fs::copy_file(program.empty() ? GDI_PROGRAM : program, folder_ / "app/rasterToGDI",
                fs::copy_options::overwrite_existing);
  fs::remove(folder_ / "app/resources");
  fs::create_directory_symlink(bundle.value_or(GDI_BUNDLE), folder_ / "app/resources");
  const std::string bytes(raster.begin(), raster.end());
  writeFile(folder_ / "raster", bytes);
}

std::vector<std::string> FilterProcess::argumentList() const {
  if (arguments) {
    return *arguments;
  }
  std::vector<std::string> list{kQueue, "1", user, title, "1", options};
  if (rasterAsFile) {
    list.push_back((folder_ / "raster").string());
  }
  return list;
}

std::vector<std::string> FilterProcess::environmentList() const {
  std::map<std::string, std::string> all{{"CUPS_SERVERROOT", (folder_ / "etc").string()},
                                         {"CUPS_SERVER", "localhost"},
                                         {"TMPDIR", (folder_ / "tmp").string()},
                                         {"TZ", "UTC"},
                                         {"GDI_TEST_LOG_FOLDER", folder_.string()}};
  for (const auto& [name, value] : environment) {
    all[name] = value;
  }
  if (const char* sanitizer = std::getenv("ASAN_OPTIONS"); sanitizer != nullptr) {
    all["ASAN_OPTIONS"] = sanitizer;
  }
  std::vector<std::string> list;
  for (const auto& [name, value] : all) {
    list.push_back(name + "=" + value);
  }
  return list;
}

void FilterProcess::start(bool keepInputOpen) {
  prepareFolder();
  std::vector<std::string> argumentTexts = argumentList();
  std::vector<std::string> environmentTexts = environmentList();
  const std::vector<char*> argumentPointers = pointersTo(argumentTexts);
  const std::vector<char*> environmentPointers = pointersTo(environmentTexts);
  const std::string executable = (folder_ / "app/rasterToGDI").string();
  const std::string output = outputPath.empty() ? (folder_ / "output").string() : outputPath;
  const std::string errors = (folder_ / "errors").string();
  const std::string input = rasterAsFile ? "/dev/null" : (folder_ / "raster").string();
  std::array<int, 2> inputPipe{-1, -1};
  if (keepInputOpen) {
    ASSERT_EQ(pipe2(inputPipe.data(), O_CLOEXEC), 0);
  }
  process_ = fork();
  ASSERT_GE(process_, 0);
  if (process_ == 0) {
    const int in = keepInputOpen ? inputPipe[0] : open(input.c_str(), O_RDONLY | O_CLOEXEC);
    const int out = open(output.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
    const int err = open(errors.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_APPEND | O_CLOEXEC, 0644);
    (void)dup2(in, STDIN_FILENO);
    (void)dup2(out, STDOUT_FILENO);
    (void)dup2(err, STDERR_FILENO);
    for (const int descriptor : closed) {
      (void)close(descriptor);
    }
    (void)execve(executable.c_str(), argumentPointers.data(), environmentPointers.data());
    _exit(127);
  }
  if (keepInputOpen) {
    (void)close(inputPipe[0]);
    input_ = inputPipe[1];
    feed(raster);
  }
}

void FilterProcess::feed(std::span<const std::uint8_t> bytes) const {
  while (!bytes.empty()) {
    const ssize_t count = write(input_, bytes.data(), bytes.size());
    if (count <= 0) {
      return;  // the program reads no more
    }
    bytes = bytes.subspan(static_cast<std::size_t>(count));
  }
}

void FilterProcess::send(int signal) const {
  (void)kill(process_, signal);
}

bool FilterProcess::isRunning() const {
  siginfo_t ended{};
  return waitid(P_PID, static_cast<id_t>(process_), &ended, WEXITED | WNOHANG | WNOWAIT) == 0 &&
         ended.si_pid == 0;
}

void FilterProcess::closeInput() {
  if (input_ >= 0) {
    (void)close(input_);
    input_ = -1;
  }
}

std::string FilterProcess::errorsSoFar() const {
  return textOf(folder_ / "errors");
}

bool FilterProcess::waitForErrors(const std::string& text) const {
  const auto end = std::chrono::steady_clock::now() + kPatience;
  while (errorsSoFar().find(text) == std::string::npos) {
    if (std::chrono::steady_clock::now() > end) {
      return false;
    }
    std::this_thread::sleep_for(kPollInterval);
  }
  return true;
}

FilterResult FilterProcess::wait() {
  const auto end = std::chrono::steady_clock::now() + kLongestRun;
  int status = 0;
  while (waitpid(process_, &status, WNOHANG) == 0) {
    if (std::chrono::steady_clock::now() > end) {
      (void)kill(process_, SIGKILL);
    }
    std::this_thread::sleep_for(kPollInterval);
  }
  process_ = -1;
  closeInput();
  FilterResult result;
  if (WIFEXITED(status)) {
    result.exitStatus = WEXITSTATUS(status);
  } else {
    result.signal = WTERMSIG(status);
  }
  result.output = outputPath.empty() ? bytesOf(folder_ / "output") : std::vector<std::uint8_t>{};
  result.errors = errorsSoFar();
  result.debugLog = textOf(folder_ / "debug.log");
  for (const fs::directory_entry& entry : fs::directory_iterator(folder_ / "tmp")) {
    result.leftInTmp.push_back(entry.path().filename().string());
  }
  expectKeptFormat(result);
  return result;
}

}  // namespace gdi::programtest
