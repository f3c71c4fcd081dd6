// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// Whole jobs run in the test's own process: pages from a script, standard output into a file.
#pragma once

#include <array>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "printer/GDIFilter.h"
#include "tests/halftone/FakeRasterStream.h"
#include "tests/halftone/ScreenBundle.h"
#include "tests/printer/JobStream.h"
#include "tests/support/DebugLogCapture.h"
#include "tests/support/EnvironmentVariable.h"

namespace gdi::test {

// The options of the print system.
inline const std::string kLongEdge = "com.apple.print.PrintSettings.PMDuplexing..n.=2 ";
inline const std::string kShortEdge = "com.apple.print.PrintSettings.PMDuplexing..n.=3 ";
inline const std::string kCollate = "com.apple.print.PrintSettings.PMCopyCollate..b.=true ";
std::string copiesOption(int copies);
std::string sidesOption(int sides);

// Fills a line with ink everywhere.
void fillInk(std::uint32_t line, std::span<std::uint8_t> bytes);

// The filter with a job handed to it, noting how each page was turned.
class JobFilter : public GDIFilter {
 public:
  struct Turn {
    bool flip = false;
    bool mirror = false;
    bool operator==(const Turn&) const = default;
  };

  JobFilter(std::string options, std::vector<FakePage> pages);

  // Arguments of the job, to be changed before it runs.
  std::string user = "ada";
  std::string title = "Report";
  // Asked before a page starts; its false is the page's.
  std::function<bool(std::uint32_t page)> beforePage;
  // Asked before a band is compressed, with the number of bands compressed before it in the job; a
  // length that it answers is taken for the compressor's.
  std::function<std::optional<std::uint32_t>(std::size_t band)> beforeBand;
  // Notes of the job, one entry a page.
  std::vector<Turn> turns;
  std::vector<std::uint32_t> sides;

  // init and the job's options, without a PPD.
  bool prepare();
  bool startPage(std::uint32_t page) override;
  // Starts a page of that header as the page loop does, but for its line buffer.
  bool startPageOf(const cups_page_header_t& header);

 protected:
  std::unique_ptr<RasterStream> openRaster() override;
  std::uint32_t compress(const std::uint8_t* band, std::uint32_t byteCount, bool lastBand) override;

 private:
  std::string options_;
  std::vector<FakePage> pages_;
  std::array<const char*, 7> arguments_{};
  std::size_t bands_ = 0;
};

// Standard output led to `descriptor` as long as this object exists. What it could not take is
// dropped at the end.
class StandardOutput {
 public:
  explicit StandardOutput(int descriptor);
  ~StandardOutput();
  StandardOutput(const StandardOutput&) = delete;
  StandardOutput& operator=(const StandardOutput&) = delete;

 private:
  int former_;
};

class FilterJob : public testing::Test {
 protected:
  void TearDown() override;

  // Runs the job; its output stands in `stream_` and taken apart in `records_`.
  bool run(JobFilter& filter);
  bool run(const std::string& options, std::vector<FakePage> pages);
  // Runs the job with standard output led to `descriptor`, which it closes.
  bool runInto(int descriptor, JobFilter& filter);

  // Replaces the bundle's information dictionary, but for "CUPSFileHeader".
  void setInformation(TestBundle::Texts information);
  // Lines of the debug log that begin with one of the words.
  [[nodiscard]] std::vector<std::string> logLines(const std::vector<std::string>& words) const;
  // "wrote" lines of the debug log so far.
  [[nodiscard]] std::size_t bandsWritten() const;

  static constexpr const char* kPrologue = "PROLOGUE;";

  std::optional<ScreenBundle> bundle_{
      std::in_place, TestBundle::Texts{{"SystemVersion", "10.4.0"}, {"CUPSFileHeader", kPrologue}}};
  DebugLogCapture log_;
  TemporaryFolder outputFolder_;
  TemporaryFolder scratch_;
  EnvironmentVariable scratchVariable_{"TMPDIR", scratch_.path().string()};

  Bytes stream_;
  std::vector<StreamRecord> records_;
  std::string errors_;
};

}  // namespace gdi::test
