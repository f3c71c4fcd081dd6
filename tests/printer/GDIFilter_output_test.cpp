// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// The way to standard output when it cannot be written.

#include <array>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <filesystem>
#include <thread>

#include <fcntl.h>
#include <pthread.h>
#include <sys/resource.h>
#include <unistd.h>

#include "filter/signals.h"
#include "tests/printer/FilterJob.h"

namespace gdi::test {
namespace {

extern "C" void cancelJob(int /*signal*/) {
  gSigTerm = 1;
}

std::size_t countOf(const std::string& text, const std::string& part) {
  std::size_t count = 0;
  for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) {
    ++count;
  }
  return count;
}

// Cancels the job once the debug log holds the report that many times.
class CancelAfterReports {
 public:
  CancelAfterReports(const DebugLogCapture& log, std::size_t reports,
                     const std::string& report = "ERROR: recoverable: ")
      : former_(std::signal(SIGALRM, cancelJob)),
        watcher_([&log, reports, report, job = pthread_self()](const std::stop_token& stop) {
          while (!stop.stop_requested() && countOf(log.text(), report) < reports) {
            std::this_thread::sleep_for(std::chrono::milliseconds(2));
          }
          (void)pthread_kill(job, SIGALRM);
        }) {}
  ~CancelAfterReports() {
    watcher_.request_stop();
    watcher_.join();
    (void)std::signal(SIGALRM, former_);
  }
  CancelAfterReports(const CancelAfterReports&) = delete;
  CancelAfterReports& operator=(const CancelAfterReports&) = delete;

 private:
  void (*former_)(int);
  std::jthread watcher_;
};

int fullDevice() {
  return open("/dev/full", O_WRONLY | O_CLOEXEC);
}

// The writing end of a pipe that nobody reads.
int brokenPipe() {
  std::array<int, 2> ends{};
  EXPECT_EQ(pipe2(ends.data(), O_CLOEXEC), 0);
  (void)close(ends[0]);
  return ends[1];
}

const std::string kReport = "ERROR: recoverable: Unable to communicate with printer";

class FailedWrite : public FilterJob {
 protected:
  // Noise that fills any buffer of the output within a band.
  static FakePage noise(std::uint32_t channels) {
    return {pageHeader(4000, 300, channels), [](std::uint32_t line, auto bytes) {
              std::uint32_t state = line * 2654435761U + 1;
              for (std::uint8_t& byte : bytes) {
                state = state * 1664525U + 1013904223U;
                byte = static_cast<std::uint8_t>(state >> 24);
              }
            }};
  }
};

TEST_F(FailedWrite, IsReportedEveryTenthOfASecondUntilTheJobIsCancelled) {
  JobFilter filter("", {noise(1)});
  const CancelAfterReports cancel(log_, 4);
  const auto start = std::chrono::steady_clock::now();
  EXPECT_FALSE(runInto(fullDevice(), filter));
  EXPECT_GE(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(300));
  EXPECT_GE(countOf(errors_, kReport + "\n"), 4U) << errors_;
  EXPECT_EQ(log_.count(kReport), countOf(errors_, kReport + "\n"));
  EXPECT_GE(log_.count("ASSERT: GDIFilter sendData: failed to write data: No space left on device"),
            1U);
}

TEST_F(FailedWrite, IsFollowedByNoOtherRecordOfThePage) {
  JobFilter filter("", {noise(4)});
  const CancelAfterReports cancel(log_, 1);
  EXPECT_FALSE(runInto(fullDevice(), filter));
  EXPECT_EQ(bandsWritten(), 1U);
  EXPECT_EQ(log_.count("GDIFilter sendRaster: wrote K band 0"), 1U);
  EXPECT_EQ(log_.count("ASSERT: sendRaster failed"), 1U);
}

TEST_F(FailedWrite, IntoABrokenPipeIsReportedUntilTheJobIsCancelled) {
  installSignalHandlers();
  JobFilter filter("", {noise(1)});
  const CancelAfterReports cancel(log_, 2);
  EXPECT_FALSE(runInto(brokenPipe(), filter));
  EXPECT_EQ(gSigPipe, 1);
  EXPECT_GE(countOf(errors_, kReport + "\n"), 2U) << errors_;
  EXPECT_GE(log_.count("ASSERT: GDIFilter sendData: failed to write data: Broken pipe"), 1U);
}

TEST_F(FailedWrite, OfAShortJobShowsAtTheEndAtTheLatest) {
  JobFilter filter("", {{pageHeader(8, 1, 1), {}}});
  const CancelAfterReports cancel(log_, 1);
  EXPECT_FALSE(runInto(fullDevice(), filter));
  EXPECT_GE(countOf(errors_, kReport + "\n"), 1U) << errors_;
  EXPECT_EQ(logLines({"GDIFilter endJob: sending JIDG", "ASSERT: GDIFilter sendData"}),
            (std::vector<std::string>{
                "GDIFilter endJob: sending JIDG",
                "ASSERT: GDIFilter sendData: failed to write data: No space left on device"}));
}

TEST_F(FailedWrite, OfThePrologueFailsTheJobBeforeItsFirstPage) {
  setInformation({{"CUPSFileHeader", std::string(100000, 'P')}});
  JobFilter filter("", {{pageHeader(8, 1, 1), {}}});
  const CancelAfterReports cancel(log_, 1);
  EXPECT_FALSE(runInto(fullDevice(), filter));
  EXPECT_EQ(log_.count("GDIFilter startJob: exiting - result: 0"), 1U);
  EXPECT_TRUE(filter.turns.empty());
  EXPECT_EQ(log_.count("GDIFilter endJob:"), 1U);
}

TEST_F(FailedWrite, OfACancelledJobIsNotReportedToTheSpooler) {
  JobFilter filter("", {noise(1)});
  filter.beforePage = [](std::uint32_t /*page*/) {
    gSigTerm = 1;
    return true;
  };
  EXPECT_FALSE(runInto(fullDevice(), filter));
  EXPECT_EQ(countOf(errors_, kReport), 0U) << errors_;
}

TEST_F(FailedWrite, IsReportedInTheLanguageOfTheSpooler) {
  const EnvironmentVariable language("LANG", "de_DE.UTF-8");
  bundle_->setStrings("de", {{"DriverCommError", "Keine Verbindung zum Drucker"}});
  JobFilter filter("", {{pageHeader(8, 1, 1), {}}});
  const CancelAfterReports cancel(log_, 1);
  EXPECT_FALSE(runInto(fullDevice(), filter));
  EXPECT_GE(countOf(errors_, "ERROR: recoverable: Keine Verbindung zum Drucker\n"), 1U) << errors_;
}

// Standard output without a buffer, so that each record's write fails at the record.
class UnbufferedOutput {
 public:
  UnbufferedOutput() {
    (void)std::fflush(stdout);
    (void)std::setvbuf(stdout, nullptr, _IONBF, 0);
  }
  ~UnbufferedOutput() {
    static std::array<char, BUFSIZ> buffer;  // stdout outlives this object
    (void)std::setvbuf(stdout, buffer.data(), _IOFBF, buffer.size());
  }
  UnbufferedOutput(const UnbufferedOutput&) = delete;
  UnbufferedOutput& operator=(const UnbufferedOutput&) = delete;
};

// A file with room for so many bytes of a job stream: it ends where the process may write no
// further, far beyond the size of any other file that the job writes.
class ShortFile {
 public:
  ShortFile(const std::filesystem::path& path, std::size_t room)
      : descriptor_(open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600)),
        formerHandler_(std::signal(SIGXFSZ, SIG_IGN)) {
    EXPECT_EQ(getrlimit(RLIMIT_FSIZE, &formerLimit_), 0);
    const rlimit limit{kEnd, formerLimit_.rlim_max};
    EXPECT_EQ(setrlimit(RLIMIT_FSIZE, &limit), 0);
    const auto begin = static_cast<off_t>(kEnd - room);
    EXPECT_EQ(lseek(descriptor_, begin, SEEK_SET), begin);
  }
  ~ShortFile() {
    (void)setrlimit(RLIMIT_FSIZE, &formerLimit_);
    (void)std::signal(SIGXFSZ, formerHandler_);
  }
  ShortFile(const ShortFile&) = delete;
  ShortFile& operator=(const ShortFile&) = delete;

  [[nodiscard]] int descriptor() const { return descriptor_; }

 private:
  static constexpr rlim_t kEnd = rlim_t{64} * 1024 * 1024;
  int descriptor_;
  void (*formerHandler_)(int);
  rlimit formerLimit_{};
};

// The bytes of the stream of a job without prologue, up to the end of each record.
constexpr std::size_t kThroughJobRecord = 120;
constexpr std::size_t kThroughHostRecord = kThroughJobRecord + 152;
constexpr std::size_t kThroughPageRecord = kThroughHostRecord + 64;
constexpr std::size_t kThroughBandRecord = kThroughPageRecord + 32;

const std::string kFailed = "ASSERT: GDIFilter sendData: failed to write data: File too large";
const std::string kPageFailed = "GDIFilter startPage: exiting - result: 0";
const std::string kMark = "GDIFilter endJob: sending JIDG";  // fails as well, at once

class FailedRecord : public FilterJob {
 protected:
  // What a job whose stream ends after `room` bytes says about its writes. Every write from there
  // on fails, so the log tells each.
  std::vector<std::string> linesOfJobCutAfter(std::size_t room) {
    setInformation({{"CUPSFileHeader", ""}, {"SystemVersion", "10.4.0"}});
    JobFilter filter("", {{pageHeader(8, 1, 1), {}}});
    const ShortFile file(outputFolder_.path() / "short", room);
    const CancelAfterReports cancel(log_, 1);
    const UnbufferedOutput unbuffered;
    EXPECT_FALSE(runInto(file.descriptor(), filter));
    return logLines({"ASSERT: GDIFilter", "hostname", "GDIFilter startPage: exiting",
                     "GDIFilter sendRaster", "GDIFilter endJob: sending"});
  }
  static std::string hostLine() {
    std::array<char, 256> host{};
    EXPECT_EQ(gethostname(host.data(), host.size() - 1), 0);
    return "hostname = " + std::string(host.data());
  }
};

TEST_F(FailedRecord, OfTheJobIsFollowedByNeitherHostNorPageRecord) {
  EXPECT_EQ(linesOfJobCutAfter(0), (std::vector{kFailed, kPageFailed, kMark, kFailed}));
}

TEST_F(FailedRecord, OfTheHostIsFollowedByNoPageRecord) {
  EXPECT_EQ(linesOfJobCutAfter(kThroughJobRecord),
            (std::vector{hostLine(), kFailed, kPageFailed, kMark, kFailed}));
}

TEST_F(FailedRecord, OfThePageFailsThePage) {
  EXPECT_EQ(linesOfJobCutAfter(kThroughHostRecord),
            (std::vector{hostLine(), kFailed, kPageFailed, kMark, kFailed}));
}

TEST_F(FailedRecord, OfABandIsNotFollowedByTheBand) {
  const std::vector<std::string> expected{hostLine(), "GDIFilter startPage: exiting - result: 1",
                                          kFailed,    "GDIFilter sendRaster: wrote K band 0",
                                          kMark,      kFailed};
  EXPECT_EQ(linesOfJobCutAfter(kThroughPageRecord), expected);
  log_.clear();
  gSigTerm = 0;
  EXPECT_EQ(linesOfJobCutAfter(kThroughBandRecord), expected);  // the band itself
}

}  // namespace
}  // namespace gdi::test
