// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// The built program, started as the spooler starts it: argv[0] a queue name, its PPD found through
// CUPS_SERVERROOT, a folder of its own for everything else.
#pragma once

#include <cstdint>
#include <filesystem>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include <sys/types.h>

namespace gdi::programtest {

inline constexpr char kQueue[] = "test-queue";

// The text of a PPD with a nickname; `extra` holds further lines, each with its line feed.
std::string ppdText(const std::string& extra = "");

struct FilterResult {
  std::optional<int> exitStatus;  // nothing when a signal ended the program
  int signal = 0;                 // the signal that did
  std::vector<std::uint8_t> output;
  std::string errors;                  // standard error
  std::string debugLog;                // what the debug log says; empty while it is off
  std::vector<std::string> leftInTmp;  // names in the program's temporary folder afterwards
};

class FilterProcess {
 public:
  FilterProcess();
  ~FilterProcess();
  FilterProcess(const FilterProcess&) = delete;
  FilterProcess& operator=(const FilterProcess&) = delete;

  // What to change before start().
  std::vector<std::uint8_t> raster;
  bool rasterAsFile = false;                          // argv[6] instead of standard input
  std::string options;                                // argv[5]
  std::string title = "Title";                        // argv[3]
  std::string user = "user";                          // argv[2]
  std::optional<std::vector<std::string>> arguments;  // the whole argv in place of the above
  std::map<std::string, std::string> environment;     // beside what every run gets
  std::optional<std::string> ppd = ppdText();         // nothing: the queue has no PPD
  std::string program;                          // the executable; the one under test when empty
  std::string outputPath;                       // where standard output goes; a file when empty
  std::vector<int> closed;                      // descriptors that the program finds closed
  bool debugLog = false;                        // whether the log's marker exists
  std::optional<std::filesystem::path> bundle;  // resources to run with; the built ones if absent

  // Starts the program; its standard input ends with the raster, or stays open after it.
  void start(bool keepInputOpen = false);
  void send(int signal) const;
  [[nodiscard]] bool isRunning() const;
  // More standard input, of a program that was started with its input kept open.
  void feed(std::span<const std::uint8_t> bytes) const;
  void closeInput();
  // What standard error holds by now.
  [[nodiscard]] std::string errorsSoFar() const;
  // Waits until standard error holds `text`; false after 20 seconds.
  [[nodiscard]] bool waitForErrors(const std::string& text) const;
  // Waits for the end; the program is killed after 60 seconds. A stream that violates the format is
  // a failure of the running test, whatever else the test looks at.
  FilterResult wait();

  FilterResult run() {
    start();
    return wait();
  }

  [[nodiscard]] const std::filesystem::path& folder() const { return folder_; }

 private:
  void prepareFolder();
  [[nodiscard]] std::vector<std::string> argumentList() const;
  [[nodiscard]] std::vector<std::string> environmentList() const;

  std::filesystem::path folder_;
  pid_t process_ = -1;
  int input_ = -1;
};

// The bytes and the text of a file; empty when there is none.
std::vector<std::uint8_t> bytesOf(const std::filesystem::path& path);
std::string textOf(const std::filesystem::path& path);

}  // namespace gdi::programtest
